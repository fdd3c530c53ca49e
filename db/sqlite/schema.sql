-- Tabellion Archivista: the schema of a site's database on SQLite, version 3.2.
-- Run on an empty database by tabellion-sql:
--   tabellion-sql --crea -U utente -P password -S cartella -d NomeDatabase -i schema.sql
-- Names are unquoted, so that any spelling of a table or column reaches it; text compares
-- without regard to case.

-- The one row of the site's settings that belong to the database.
CREATE TABLE Config (
    Code        VARCHAR(10)  NOT NULL COLLATE NOCASE PRIMARY KEY,
    Descrizione VARCHAR(255) COLLATE NOCASE,
    Versione    NUMERIC(6,2),
    ID_Start    INTEGER      NOT NULL,
    ID_End      INTEGER      NOT NULL,
    Valore      DOUBLE PRECISION NOT NULL DEFAULT 0,
    DataValore  VARCHAR(20)  COLLATE NOCASE
);

INSERT INTO Config (Code, Descrizione, Versione, ID_Start, ID_End, Valore, DataValore)
VALUES ('SITO', NULL, 3.2, 1, 999999999, 0, NULL);
