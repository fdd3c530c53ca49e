-- Tabellion Archivista: the demo archive, in SQL that both SQLite and PostgreSQL read.
-- Loaded after schema.sql into the demo database of the program folder.

UPDATE Config SET Code = 'DEMO', Descrizione = 'Archivio dimostrativo di Tabellion Archivista',
    Valore = 1.5, DataValore = '01/01/2026';
