# Builds one demo SQLite database afresh with tabellion-sql, in the program folder or in
# another folder (DESTINAZIONE).
# -DSTRUMENTO=tabellion-sql -DSITO=folder [-DDESTINAZIONE=folder] -DDATABASE=name -DSCRIPT=a.sql|b.sql
if(NOT DESTINAZIONE)
    set(DESTINAZIONE "${SITO}")
endif()
string(REPLACE "|" ";" script_list "${SCRIPT}")
set(argomenti)
foreach(s ${script_list})
    list(APPEND argomenti -i "${s}")
endforeach()
# Each database is a site of its own, with its identity: the demo archive's code is DEMO.
if(DATABASE STREQUAL "Tabellion")
    set(identita --codice DEMO --descrizione "Archivio dimostrativo di Tabellion Archivista")
else()
    set(identita --codice ESERCIZIO --descrizione "Database di esercitazione")
endif()
list(APPEND identita --id-inizio 1 --id-fine 999999999)
file(REMOVE "${DESTINAZIONE}/${DATABASE}.db" "${DESTINAZIONE}/${DATABASE}.db.nuovo")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env "TABELLION_CARTELLA=${SITO}"
            "${STRUMENTO}" --crea ${identita} -U demo -P demo -S "${DESTINAZIONE}" -d "${DATABASE}.db.nuovo" ${argomenti}
    RESULT_VARIABLE esito
    OUTPUT_VARIABLE uscita
    ERROR_VARIABLE errori)
if(NOT esito EQUAL 0)
    file(REMOVE "${DESTINAZIONE}/${DATABASE}.db.nuovo")
    message(FATAL_ERROR "Demo database ${DATABASE} not built:\n${errori}")
endif()
file(RENAME "${DESTINAZIONE}/${DATABASE}.db.nuovo" "${DESTINAZIONE}/${DATABASE}.db")
