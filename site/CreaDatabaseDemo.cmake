# Builds one demo SQLite database of the program folder afresh with tabellion-sql.
# -DSTRUMENTO=tabellion-sql -DSITO=folder -DDATABASE=name -DSCRIPT=a.sql|b.sql
string(REPLACE "|" ";" script_list "${SCRIPT}")
set(argomenti)
foreach(s ${script_list})
    list(APPEND argomenti -i "${s}")
endforeach()
file(REMOVE "${SITO}/${DATABASE}.db" "${SITO}/${DATABASE}.db.nuovo")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env "TABELLION_CARTELLA=${SITO}"
            "${STRUMENTO}" --crea -U demo -P demo -S "${SITO}" -d "${DATABASE}.db.nuovo" ${argomenti}
    RESULT_VARIABLE esito
    OUTPUT_VARIABLE uscita
    ERROR_VARIABLE errori)
if(NOT esito EQUAL 0)
    file(REMOVE "${SITO}/${DATABASE}.db.nuovo")
    message(FATAL_ERROR "Demo database ${DATABASE} not built:\n${errori}")
endif()
file(RENAME "${SITO}/${DATABASE}.db.nuovo" "${SITO}/${DATABASE}.db")
