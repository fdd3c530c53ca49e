-- Upgrade of the schema to the application's version 3.2. Run by tabellion-sql (menu
-- Strumenti > Aggiorna versione) under the user's login on the session's database.
UPDATE Config SET Versione = 3.2 WHERE Versione IS NULL OR Versione < 3.2;
