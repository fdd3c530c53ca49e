-- Server: SQLite
-- Tabellion Archivista: the schema of a site's database on SQLite, version 3.2 and later.
-- Written by db/genera_schema.py: change that file and run it again, not this one.
-- Run on an empty database, e.g.:
--   tabellion-sql --crea --codice SITO1 --id-inizio 1000000 --id-fine 1999999 \
--       -U utente -P password -S server -d NomeDatabase -i schema.sql
-- Names are unquoted, so any spelling of a table or column reaches it.
--
-- Decisions:
-- - Every generated key lies between Config.ID_Start and Config.ID_End. PostgreSQL: identity
--   sequences bounded to that range (tabellion_allinea_chiavi() realigns them all when the range
--   changes, tabellion_riallinea_chiave(table) one table's after an import). SQLite: the
--   program's inserts take the next key of the range in the insert itself (the store's
--   Backend::IstruzioneInserisci). The detail row of an element, and the kind row of a producer,
--   take the key of their element or producer.
-- - DenomCompleta of Istituti, ComplessiDoc and Inventari: the denominations from the topmost
--   ancestor down to the element itself, joined by " > ", kept current on every rename.
-- - Counters: Istituti.NumeroComplessi/NumeroInventari count the complessi and inventari whose
--   ID_Istituto is that institute; ComplessiDoc.NumeroInventari its Links rows to an inventario;
--   Inventari.NumeroComplessi the complessi linked to it; Inventari.NumeroPergamene,
--   NumeroDatiInventariali, NumeroSigilli the rows with its ID_Inventario. Never Null.
-- - ComplessiDoc.Valore = Quantita * KConservazione * KPeriodo * KSupporto * KRilevanza * KRarita;
--   QuantitaFigli, MetriLineariFigli, ValoreFigli sum what the direct child complessi bring: each
--   child its own figure when it has one (not Null and not 0), otherwise the figure it carries up.
--   A level's own Quantita is the total of the level, so a level whose children declare theirs is
--   compared with exactly those totals, and levels that declare nothing pass their children's
--   figures on up. DataInizioFigli/DataFineFigli span the children's dates and carried-up dates
--   (the whole subtree). Kept current up the chain of ancestors on insert, update and delete; a
--   change stops climbing at the first ancestor whose share of its own parent stays the same.
-- - ISAD_Nazione is 'IT'; ISAD_Codice/ISAD_Sigla of a complesso are those of its institute; of a
--   producer those of the site's first top-level institute that has a code.
-- - ID_Istituto of complessi, inventari and versamenti: the nearest institute above them.
--   ID_Inventario of units, pergamene and sigilli: the detail key of the nearest inventario above.
-- - Code comes from Config.Code when the row does not bring one (an imported row keeps its own).
-- - Deleting an element that still has children is refused; deleting a detail row removes its
--   Elementi row, its Links rows and every row that hangs on it.
-- - Config.Versione is a number (the demo database holds 4).
-- - DatiInventariali.Ordinamento is text of 3; the views expose DATIINV_Ordinamento as a number,
--   Null where the text is not one.
-- - Versamenti.Titolo is the element's denomination.
-- - Versamenti.NumeroRPC is a whole number of up to 18 digits, held exactly (64 bits); the upgrade
--   turns the floating column of earlier versions into it.
-- - No declared foreign keys: tables are imported one at a time, so integrity is kept by triggers,
--   which an import switches off per table (SQLite: a row in TriggerSospesi; PostgreSQL:
--   DISABLE TRIGGER USER through tabellion_interruttore_trigger(table, on)).
-- - PostgreSQL rights: everything belongs to one owner role; the archivists' group gets, through
--   tabellion_concedi_diritti(group), the rows of every table (of Config only Valore and
--   DataValore to change), the sequences, and the two functions that run with the owner's rights
--   what an import needs of an owner: tabellion_interruttore_trigger and
--   tabellion_riallinea_chiave. No function is executable by PUBLIC.


-- The import switches a table's triggers off with a row here.
CREATE TABLE TriggerSospesi (
    Tabella VARCHAR(64) NOT NULL COLLATE NOCASE PRIMARY KEY
);

CREATE TABLE Config (
    Code VARCHAR(10) COLLATE NOCASE NOT NULL,
    Descrizione VARCHAR(255) COLLATE NOCASE,
    Versione REAL,
    ID_Start INTEGER NOT NULL,
    ID_End INTEGER NOT NULL,
    Valore REAL NOT NULL DEFAULT 0,
    DataValore VARCHAR(20) COLLATE NOCASE,
    PRIMARY KEY (Code)
);

CREATE TABLE Elementi (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoPadre INTEGER,
    Tipologia VARCHAR(2) COLLATE NOCASE NOT NULL,
    Denominazione VARCHAR(512) COLLATE NOCASE NOT NULL DEFAULT '',
    Pubblicato VARCHAR(1) COLLATE NOCASE,
    DataRedazione DATETIME,
    Redattore VARCHAR(64) COLLATE NOCASE,
    Figli INTEGER NOT NULL DEFAULT 0,
    XmlLink VARCHAR(512) COLLATE NOCASE,
    Md5Link VARCHAR(32) COLLATE NOCASE,
    PaginaStart INTEGER DEFAULT 0,
    PaginaEnd INTEGER DEFAULT 0,
    StruProg INTEGER,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Elemento)
);
CREATE INDEX Elementi_ID_ElementoPadre ON Elementi (ID_ElementoPadre);

CREATE TABLE Links (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoLink INTEGER NOT NULL,
    Specifica VARCHAR(255) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Elemento, ID_ElementoLink)
);
CREATE INDEX Links_ID_ElementoLink ON Links (ID_ElementoLink);

CREATE TABLE Istituti (
    ID_Istituto INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    Tipologia VARCHAR(2) COLLATE NOCASE,
    Indirizzo VARCHAR(64) COLLATE NOCASE,
    Citta VARCHAR(64) COLLATE NOCASE,
    Cap VARCHAR(6) COLLATE NOCASE,
    Provincia VARCHAR(4) COLLATE NOCASE,
    Telefono VARCHAR(64) COLLATE NOCASE,
    Fax VARCHAR(64) COLLATE NOCASE,
    EMail VARCHAR(64) COLLATE NOCASE,
    UrlWeb VARCHAR(128) COLLATE NOCASE,
    Responsabile VARCHAR(256) COLLATE NOCASE,
    Orario VARCHAR(128) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    UrlLink VARCHAR(128) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    NumeroInventari INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Istituto)
);
CREATE UNIQUE INDEX Istituti_U1 ON Istituti (ID_Elemento);
CREATE INDEX Istituti_Tipologia ON Istituti (Tipologia);

CREATE TABLE CodiciIstituto (
    ID_CodiceIstituto INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    PRIMARY KEY (ID_CodiceIstituto)
);
CREATE INDEX CodiciIstituto_ISAD_Codice_ISAD_Sigla ON CodiciIstituto (ISAD_Codice, ISAD_Sigla);
CREATE INDEX CodiciIstituto_Denominazione ON CodiciIstituto (Denominazione);

CREATE TABLE Provincie (
    Provincia VARCHAR(4) COLLATE NOCASE NOT NULL,
    NomeProvincia VARCHAR(64) COLLATE NOCASE,
    PRIMARY KEY (Provincia)
);
CREATE INDEX Provincie_NomeProvincia ON Provincie (NomeProvincia);

CREATE TABLE ComplessiDoc (
    ID_ComplessoDoc INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    NoteStoriche VARCHAR(1024) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    Classificazione VARCHAR(64) COLLATE NOCASE,
    KConservazione REAL DEFAULT 0,
    KPeriodo REAL DEFAULT 0,
    KSupporto REAL DEFAULT 0,
    KRilevanza REAL DEFAULT 0,
    KRarita REAL DEFAULT 0,
    Quantita REAL DEFAULT 0,
    QuantitaFigli REAL DEFAULT 0,
    Valore REAL DEFAULT 0,
    ValoreFigli REAL DEFAULT 0,
    MetriLineari REAL DEFAULT 0,
    MetriLineariFigli REAL DEFAULT 0,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    DescrizioneEstensioni VARCHAR(64) COLLATE NOCASE,
    DataInizioFigli INTEGER,
    DataFineFigli INTEGER,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    UrlLink VARCHAR(128) COLLATE NOCASE,
    Ordinamento INTEGER,
    Topografico VARCHAR(256) COLLATE NOCASE,
    ID_IstitutoMag INTEGER,
    ID_IstitutoSede INTEGER,
    Tipologia VARCHAR(2) COLLATE NOCASE,
    ISAD_Nazione VARCHAR(4) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    NumeroInventari INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_ComplessoDoc)
);
CREATE UNIQUE INDEX ComplessiDoc_U1 ON ComplessiDoc (ID_Elemento);
CREATE INDEX ComplessiDoc_ID_Istituto ON ComplessiDoc (ID_Istituto);
CREATE INDEX ComplessiDoc_ID_IstitutoSede ON ComplessiDoc (ID_IstitutoSede);
CREATE INDEX ComplessiDoc_ID_IstitutoMag ON ComplessiDoc (ID_IstitutoMag);

CREATE TABLE Inventari (
    ID_Inventario INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    Tipologia VARCHAR(2) COLLATE NOCASE,
    ID_IstitutoSede INTEGER,
    ID_IstitutoMag INTEGER,
    AnnoInizio INTEGER,
    AnnoFine INTEGER,
    DescrizioneEstremi VARCHAR(256) COLLATE NOCASE,
    Autore VARCHAR(256) COLLATE NOCASE,
    TipoInventario VARCHAR(1) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    XmlLink VARCHAR(128) COLLATE NOCASE,
    UrlLink VARCHAR(128) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    SubTipologia VARCHAR(2) COLLATE NOCASE,
    Edizione VARCHAR(256) COLLATE NOCASE,
    NumeroPergamene INTEGER NOT NULL DEFAULT 0,
    NumeroDatiInventariali INTEGER NOT NULL DEFAULT 0,
    NumeroSigilli INTEGER NOT NULL DEFAULT 0,
    TipoInv VARCHAR(2) COLLATE NOCASE,
    NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Inventario)
);
CREATE UNIQUE INDEX Inventari_U1 ON Inventari (ID_Elemento);
CREATE INDEX Inventari_ID_Istituto ON Inventari (ID_Istituto);
CREATE INDEX Inventari_ID_IstitutoSede ON Inventari (ID_IstitutoSede);
CREATE INDEX Inventari_ID_IstitutoMag ON Inventari (ID_IstitutoMag);
CREATE INDEX Inventari_Denominazione ON Inventari (Denominazione);

CREATE TABLE DatiInventariali (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Tipologia VARCHAR(2) COLLATE NOCASE DEFAULT '00',
    Numero VARCHAR(64) COLLATE NOCASE,
    Descrizione VARCHAR(64) COLLATE NOCASE,
    DescrizioneTestuale VARCHAR(1024) COLLATE NOCASE,
    DescrizioneEstremi VARCHAR(128) COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    Classificazione VARCHAR(64) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    CoseNotevoli VARCHAR(512) COLLATE NOCASE,
    Ordinamento VARCHAR(3) COLLATE NOCASE,
    Titolo VARCHAR(128) COLLATE NOCASE NOT NULL DEFAULT '',
    Acquisizione VARCHAR(256) COLLATE NOCASE,
    CriteriOrdinamento VARCHAR(256) COLLATE NOCASE,
    Accesso VARCHAR(256) COLLATE NOCASE,
    Riproduzione VARCHAR(128) COLLATE NOCASE,
    Lingua VARCHAR(128) COLLATE NOCASE,
    Conservazione VARCHAR(256) COLLATE NOCASE,
    NoteGestionali VARCHAR(1024) COLLATE NOCASE,
    Id_ElemComplDoc INTEGER DEFAULT 0,
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DatoInventariale)
);
CREATE UNIQUE INDEX DatiInventariali_U1 ON DatiInventariali (ID_Elemento);
CREATE INDEX DatiInventariali_ID_Inventario ON DatiInventariali (ID_Inventario);
CREATE INDEX DatiInventariali_Id_ElemComplDoc ON DatiInventariali (Id_ElemComplDoc);

CREATE TABLE Versamenti (
    ID_Versamento INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Data DATETIME,
    Titolo VARCHAR(512) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    NumeroRPC INTEGER,
    SogVersatore VARCHAR(256) COLLATE NOCASE,
    TipoAcquisizione VARCHAR(2) COLLATE NOCASE,
    DataAcquisizione DATETIME,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    Tipologia VARCHAR(2) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Versamento)
);
CREATE UNIQUE INDEX Versamenti_U1 ON Versamenti (ID_Elemento);
CREATE INDEX Versamenti_ID_Istituto ON Versamenti (ID_Istituto);

CREATE TABLE RigheVersamento (
    ID_RigaVersamento INTEGER NOT NULL,
    ID_Versamento INTEGER NOT NULL,
    ID_ComplessoDoc INTEGER DEFAULT 0,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    Quantita REAL DEFAULT 0,
    MetriLineari REAL DEFAULT 0,
    Classificazione VARCHAR(64) COLLATE NOCASE,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    Note VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_RigaVersamento)
);
CREATE INDEX RigheVersamento_ID_Versamento ON RigheVersamento (ID_Versamento);
CREATE INDEX RigheVersamento_ID_ComplessoDoc ON RigheVersamento (ID_ComplessoDoc);

CREATE TABLE Pergamene (
    ID_Pergamena INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Segnatura VARCHAR(64) COLLATE NOCASE NOT NULL DEFAULT '',
    DataCronicaInizio INTEGER,
    DataCronicaFine INTEGER,
    DataTopica VARCHAR(64) COLLATE NOCASE,
    Datazio VARCHAR(256) COLLATE NOCASE,
    Regesto VARCHAR(1024) COLLATE NOCASE,
    Miniatura VARCHAR(512) COLLATE NOCASE,
    SigilliAttuali INTEGER DEFAULT 0,
    SigilliOriginari INTEGER DEFAULT 0,
    Annuncio VARCHAR(1024) COLLATE NOCASE,
    Accesso VARCHAR(256) COLLATE NOCASE,
    Riproduzione VARCHAR(128) COLLATE NOCASE,
    Lingua VARCHAR(128) COLLATE NOCASE,
    Bibliografia VARCHAR(1024) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    NoteRiproduzione VARCHAR(256) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    UrlLink VARCHAR(128) COLLATE NOCASE,
    DescrizioneEstremi VARCHAR(128) COLLATE NOCASE,
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);
CREATE UNIQUE INDEX Pergamene_U1 ON Pergamene (ID_Elemento);
CREATE INDEX Pergamene_ID_Inventario ON Pergamene (ID_Inventario);

CREATE TABLE PGSupporti (
    ID_Pergamena INTEGER NOT NULL,
    Supporto VARCHAR(32) COLLATE NOCASE,
    StatoConservazione VARCHAR(256) COLLATE NOCASE,
    Dimensioni VARCHAR(32) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE PGTraditio (
    ID_Pergamena INTEGER NOT NULL,
    Traditio VARCHAR(2) COLLATE NOCASE,
    DataCopia INTEGER,
    Rogatario VARCHAR(512) COLLATE NOCASE,
    DataCopiaTesto VARCHAR(64) COLLATE NOCASE,
    ID_Elemento INTEGER,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);
CREATE INDEX PGTraditio_ID_Elemento ON PGTraditio (ID_Elemento);

CREATE TABLE PGEleGrafici (
    ID_Pergamena INTEGER NOT NULL,
    NoteGrafiche VARCHAR(512) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE PGNoteStoriche (
    ID_Pergamena INTEGER NOT NULL,
    NoteStoriche VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE PGNotazioni (
    ID_PgNotazione INTEGER NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    Trascrizione TEXT COLLATE NOCASE,
    Posizione VARCHAR(64) COLLATE NOCASE NOT NULL DEFAULT '',
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    Note VARCHAR(512) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_PgNotazione)
);
CREATE INDEX PGNotazioni_ID_Pergamena ON PGNotazioni (ID_Pergamena);

CREATE TABLE PGAltreSegnature (
    ID_PGAltraSegnatura INTEGER NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    Segnatura VARCHAR(128) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_PGAltraSegnatura)
);
CREATE INDEX PGAltreSegnature_ID_Pergamena ON PGAltreSegnature (ID_Pergamena);

CREATE TABLE PGSigilli (
    ID_Pergamena INTEGER NOT NULL,
    ID_Sigillo INTEGER NOT NULL DEFAULT 0,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena, ID_Sigillo)
);
CREATE INDEX PGSigilli_ID_Sigillo ON PGSigilli (ID_Sigillo);

CREATE TABLE Sigilli (
    ID_Sigillo INTEGER NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Identificativo VARCHAR(256) COLLATE NOCASE,
    Tipologia VARCHAR(2) COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    Dimensioni VARCHAR(32) COLLATE NOCASE,
    MateriaNuovo VARCHAR(2) COLLATE NOCASE,
    Colore VARCHAR(64) COLLATE NOCASE,
    Apposizione VARCHAR(128) COLLATE NOCASE,
    Rapporto VARCHAR(2) COLLATE NOCASE,
    Ruolo VARCHAR(128) COLLATE NOCASE,
    Posizione VARCHAR(64) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    Attacchi VARCHAR(128) COLLATE NOCASE,
    Protezione VARCHAR(128) COLLATE NOCASE,
    Qualita VARCHAR(128) COLLATE NOCASE,
    Conservazione VARCHAR(256) COLLATE NOCASE,
    Segni VARCHAR(256) COLLATE NOCASE,
    Autenticita VARCHAR(256) COLLATE NOCASE,
    Matrice VARCHAR(256) COLLATE NOCASE,
    AltreImpronteSigillo VARCHAR(512) COLLATE NOCASE,
    AltreImpronteTitolare VARCHAR(512) COLLATE NOCASE,
    Edizione VARCHAR(256) COLLATE NOCASE,
    Bibliografia VARCHAR(1024) COLLATE NOCASE,
    Accesso VARCHAR(256) COLLATE NOCASE,
    Riproduzione VARCHAR(128) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    RifDocNoInv VARCHAR(512) COLLATE NOCASE,
    DescrizioneEstremi VARCHAR(256) COLLATE NOCASE,
    UrlLink VARCHAR(128) COLLATE NOCASE,
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Sigillo)
);
CREATE UNIQUE INDEX Sigilli_U1 ON Sigilli (ID_Elemento);
CREATE INDEX Sigilli_ID_Inventario ON Sigilli (ID_Inventario);

CREATE TABLE SGTipo (
    ID_Sigillo INTEGER NOT NULL,
    FormaR VARCHAR(128) COLLATE NOCASE,
    DimensioniR VARCHAR(32) COLLATE NOCASE,
    TrascrizioneR VARCHAR(512) COLLATE NOCASE,
    LinguaR VARCHAR(128) COLLATE NOCASE,
    DescrizioneR VARCHAR(1024) COLLATE NOCASE,
    TrascrizioneV VARCHAR(512) COLLATE NOCASE,
    LinguaV VARCHAR(128) COLLATE NOCASE,
    DescrizioneV VARCHAR(1024) COLLATE NOCASE,
    TipologiaR VARCHAR(128) COLLATE NOCASE,
    Incisore VARCHAR(1024) COLLATE NOCASE,
    FormaV VARCHAR(128) COLLATE NOCASE,
    DimensioniV VARCHAR(32) COLLATE NOCASE,
    TipologiaV VARCHAR(128) COLLATE NOCASE,
    TipologIcoR VARCHAR(2) COLLATE NOCASE,
    TipologIcoV VARCHAR(2) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Sigillo)
);

CREATE TABLE DICoseNotevoli (
    ID_DICosaNotevole INTEGER NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    Descrizione TEXT COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DICosaNotevole)
);
CREATE INDEX DICoseNotevoli_ID_DatoInventariale ON DICoseNotevoli (ID_DatoInventariale);

CREATE TABLE Soggetti (
    ID_Soggetto INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    TipoSoggetto VARCHAR(1) COLLATE NOCASE NOT NULL,
    Pubblicato VARCHAR(1) COLLATE NOCASE,
    DataRedazione DATETIME,
    Redattore VARCHAR(64) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Soggetto)
);
CREATE INDEX Soggetti_TipoSoggetto ON Soggetti (TipoSoggetto);
CREATE INDEX Soggetti_Denominazione ON Soggetti (Denominazione);

CREATE TABLE Persone (
    ID_Persona INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Nome VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(32) COLLATE NOCASE,
    DataNascita INTEGER,
    DataMorte INTEGER,
    AreaGeografica VARCHAR(64) COLLATE NOCASE,
    Storia VARCHAR(1024) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    LuogoNascita VARCHAR(32) COLLATE NOCASE,
    LuogoMorte VARCHAR(32) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    ISAD_Nazione VARCHAR(4) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Persona)
);
CREATE UNIQUE INDEX Persone_U1 ON Persone (ID_Soggetto);

CREATE TABLE Famiglie (
    ID_Famiglia INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Nome VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(32) COLLATE NOCASE,
    Persone TEXT COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    AreaGeografica VARCHAR(64) COLLATE NOCASE,
    Storia VARCHAR(1024) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    ISAD_Nazione VARCHAR(4) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Famiglia)
);
CREATE UNIQUE INDEX Famiglie_U1 ON Famiglie (ID_Soggetto);

CREATE TABLE Enti (
    ID_Ente INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    AreaGeografica VARCHAR(64) COLLATE NOCASE,
    NaturaGiuridica VARCHAR(256) COLLATE NOCASE,
    Storia VARCHAR(1024) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64) COLLATE NOCASE,
    Sede VARCHAR(64) COLLATE NOCASE,
    Profilo VARCHAR(2) COLLATE NOCASE,
    NoteDirezione VARCHAR(1024) COLLATE NOCASE,
    ISAD_Nazione VARCHAR(4) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Ente)
);
CREATE UNIQUE INDEX Enti_U1 ON Enti (ID_Soggetto);

CREATE TABLE ComplessiDocDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_ComplessoDoc INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX ComplessiDocDenominazioni_ID_ComplessoDoc ON ComplessiDocDenominazioni (ID_ComplessoDoc);

CREATE TABLE InventariDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Inventario INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX InventariDenominazioni_ID_Inventario ON InventariDenominazioni (ID_Inventario);

CREATE TABLE PersoneDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Persona INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX PersoneDenominazioni_ID_Persona ON PersoneDenominazioni (ID_Persona);

CREATE TABLE FamiglieDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Famiglia INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX FamiglieDenominazioni_ID_Famiglia ON FamiglieDenominazioni (ID_Famiglia);

CREATE TABLE EntiDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Ente INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX EntiDenominazioni_ID_Ente ON EntiDenominazioni (ID_Ente);

CREATE TABLE Antroponimi (
    ID_Antroponimo INTEGER NOT NULL,
    Nome VARCHAR(128) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(256) COLLATE NOCASE,
    Note VARCHAR(512) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Antroponimo)
);
CREATE INDEX Antroponimi_Nome ON Antroponimi (Nome);

CREATE TABLE Toponimi (
    ID_Toponimo INTEGER NOT NULL,
    Denominazione VARCHAR(64) COLLATE NOCASE NOT NULL DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Toponimo)
);
CREATE INDEX Toponimi_Denominazione ON Toponimi (Denominazione);

CREATE TABLE Titolari (
    ID_Titolare INTEGER NOT NULL,
    Nome VARCHAR(128) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(256) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    Bibliografia VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Titolare)
);
CREATE INDEX Titolari_Nome ON Titolari (Nome);

CREATE TABLE ComplessiDocSoggetti (
    ID_ComplessoDoc INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_ComplessoDoc, ID_Soggetto)
);
CREATE INDEX ComplessiDocSoggetti_ID_Soggetto ON ComplessiDocSoggetti (ID_Soggetto);

CREATE TABLE DatiInventarialiSoggetti (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DatoInventariale, ID_Soggetto)
);
CREATE INDEX DatiInventarialiSoggetti_ID_Soggetto ON DatiInventarialiSoggetti (ID_Soggetto);

CREATE TABLE PGAntroponimi (
    ID_PGAntroponimo INTEGER NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Ruolo VARCHAR(32) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_PGAntroponimo)
);
CREATE UNIQUE INDEX PGAntroponimi_U1 ON PGAntroponimi (ID_Pergamena, ID_Antroponimo);
CREATE INDEX PGAntroponimi_ID_Antroponimo ON PGAntroponimi (ID_Antroponimo);

CREATE TABLE DIAntroponimi (
    ID_DIAntroponimo INTEGER NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DIAntroponimo)
);
CREATE UNIQUE INDEX DIAntroponimi_U1 ON DIAntroponimi (ID_DatoInventariale, ID_Antroponimo);
CREATE INDEX DIAntroponimi_ID_Antroponimo ON DIAntroponimi (ID_Antroponimo);

CREATE TABLE PGToponimi (
    ID_Pergamena INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena, ID_Toponimo)
);
CREATE INDEX PGToponimi_ID_Toponimo ON PGToponimi (ID_Toponimo);

CREATE TABLE DIToponimi (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DatoInventariale, ID_Toponimo)
);
CREATE INDEX DIToponimi_ID_Toponimo ON DIToponimi (ID_Toponimo);

CREATE TABLE SGTitolari (
    ID_SGTitolare INTEGER NOT NULL,
    ID_Sigillo INTEGER NOT NULL,
    ID_Titolare INTEGER NOT NULL,
    Ruolo VARCHAR(32) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_SGTitolare)
);
CREATE UNIQUE INDEX SGTitolari_U1 ON SGTitolari (ID_Sigillo, ID_Titolare);
CREATE INDEX SGTitolari_ID_Titolare ON SGTitolari (ID_Titolare);

CREATE TABLE MD5Location (
    MD5 VARCHAR(32) COLLATE NOCASE NOT NULL,
    LogicalPath VARCHAR(1024) COLLATE NOCASE,
    XmlName VARCHAR(256) COLLATE NOCASE,
    Status INTEGER DEFAULT 0,
    PRIMARY KEY (MD5)
);

CREATE TABLE ImgCounter (
    PhisicalPath VARCHAR(1024) COLLATE NOCASE NOT NULL,
    Counter INTEGER,
    PRIMARY KEY (PhisicalPath)
);

CREATE TABLE IndiceWeb (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoPadre INTEGER,
    Tipologia VARCHAR(2) COLLATE NOCASE NOT NULL,
    Denominazione VARCHAR(512) COLLATE NOCASE,
    DenomCompleta TEXT COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    PRIMARY KEY (ID_Elemento)
);
CREATE INDEX IndiceWeb_ID_ElementoPadre ON IndiceWeb (ID_ElementoPadre);
CREATE INDEX IndiceWeb_Tipologia ON IndiceWeb (Tipologia);


-- Views: one row per element, the details left-joined, every column prefixed.

CREATE VIEW AlberoGlobale AS
SELECT
    E.ID_Elemento AS ELEM_ID_Elemento,
    E.ID_ElementoPadre AS ELEM_ID_ElementoPadre,
    E.Tipologia AS ELEM_Tipologia,
    E.Denominazione AS ELEM_Denominazione,
    E.Pubblicato AS ELEM_Pubblicato,
    E.DataRedazione AS ELEM_DataRedazione,
    E.Redattore AS ELEM_Redattore,
    E.Figli AS ELEM_Figli,
    E.XmlLink AS ELEM_XmlLink,
    E.Md5Link AS ELEM_Md5Link,
    E.PaginaStart AS ELEM_PaginaStart,
    E.PaginaEnd AS ELEM_PaginaEnd,
    E.StruProg AS ELEM_StruProg,
    IST.ID_Istituto AS IST_ID_Istituto,
    IST.ID_Elemento AS IST_ID_Elemento,
    IST.Denominazione AS IST_Denominazione,
    IST.Tipologia AS IST_Tipologia,
    IST.Indirizzo AS IST_Indirizzo,
    IST.Citta AS IST_Citta,
    IST.Cap AS IST_Cap,
    IST.Provincia AS IST_Provincia,
    IST.Telefono AS IST_Telefono,
    IST.Fax AS IST_Fax,
    IST.EMail AS IST_EMail,
    IST.UrlWeb AS IST_UrlWeb,
    IST.Responsabile AS IST_Responsabile,
    IST.Orario AS IST_Orario,
    IST.Note AS IST_Note,
    IST.UrlLink AS IST_UrlLink,
    IST.NoteDirezione AS IST_NoteDirezione,
    IST.NumeroComplessi AS IST_NumeroComplessi,
    IST.NumeroInventari AS IST_NumeroInventari,
    IST.DenomCompleta AS IST_DenomCompleta,
    IST.ISAD_Codice AS IST_ISAD_Codice,
    IST.ISAD_Sigla AS IST_ISAD_Sigla,
    CD.ID_ComplessoDoc AS CD_ID_ComplessoDoc,
    CD.ID_Elemento AS CD_ID_Elemento,
    CD.ID_Istituto AS CD_ID_Istituto,
    CD.Denominazione AS CD_Denominazione,
    CD.NoteStoriche AS CD_NoteStoriche,
    CD.Note AS CD_Note,
    CD.Classificazione AS CD_Classificazione,
    CD.KConservazione AS CD_KConservazione,
    CD.KPeriodo AS CD_KPeriodo,
    CD.KSupporto AS CD_KSupporto,
    CD.KRilevanza AS CD_KRilevanza,
    CD.KRarita AS CD_KRarita,
    CD.Quantita AS CD_Quantita,
    CD.QuantitaFigli AS CD_QuantitaFigli,
    CD.Valore AS CD_Valore,
    CD.ValoreFigli AS CD_ValoreFigli,
    CD.MetriLineari AS CD_MetriLineari,
    CD.MetriLineariFigli AS CD_MetriLineariFigli,
    CD.DataInizio AS CD_DataInizio,
    CD.DataFine AS CD_DataFine,
    CD.DescrizioneEstremi AS CD_DescrizioneEstremi,
    CD.DescrizioneEstensioni AS CD_DescrizioneEstensioni,
    CD.DataInizioFigli AS CD_DataInizioFigli,
    CD.DataFineFigli AS CD_DataFineFigli,
    CD.NoteDirezione AS CD_NoteDirezione,
    CD.UrlLink AS CD_UrlLink,
    CD.Ordinamento AS CD_Ordinamento,
    CD.Topografico AS CD_Topografico,
    CD.ID_IstitutoMag AS CD_ID_IstitutoMag,
    CD.ID_IstitutoSede AS CD_ID_IstitutoSede,
    CD.Tipologia AS CD_Tipologia,
    CD.ISAD_Nazione AS CD_ISAD_Nazione,
    CD.ISAD_Codice AS CD_ISAD_Codice,
    CD.ISAD_Sigla AS CD_ISAD_Sigla,
    CD.NumeroInventari AS CD_NumeroInventari,
    CD.DenomCompleta AS CD_DenomCompleta,
    INV.ID_Inventario AS INV_ID_Inventario,
    INV.ID_Elemento AS INV_ID_Elemento,
    INV.ID_Istituto AS INV_ID_Istituto,
    INV.Denominazione AS INV_Denominazione,
    INV.Tipologia AS INV_Tipologia,
    INV.ID_IstitutoSede AS INV_ID_IstitutoSede,
    INV.ID_IstitutoMag AS INV_ID_IstitutoMag,
    INV.AnnoInizio AS INV_AnnoInizio,
    INV.AnnoFine AS INV_AnnoFine,
    INV.DescrizioneEstremi AS INV_DescrizioneEstremi,
    INV.Autore AS INV_Autore,
    INV.TipoInventario AS INV_TipoInventario,
    INV.Note AS INV_Note,
    INV.XmlLink AS INV_XmlLink,
    INV.UrlLink AS INV_UrlLink,
    INV.NoteDirezione AS INV_NoteDirezione,
    INV.SubTipologia AS INV_SubTipologia,
    INV.Edizione AS INV_Edizione,
    INV.NumeroPergamene AS INV_NumeroPergamene,
    INV.NumeroDatiInventariali AS INV_NumeroDatiInventariali,
    INV.NumeroSigilli AS INV_NumeroSigilli,
    INV.TipoInv AS INV_TipoInv,
    INV.NumeroComplessi AS INV_NumeroComplessi,
    INV.DenomCompleta AS INV_DenomCompleta,
    VER.ID_Versamento AS VER_ID_Versamento,
    VER.ID_Elemento AS VER_ID_Elemento,
    VER.ID_Istituto AS VER_ID_Istituto,
    VER.Data AS VER_Data,
    VER.Titolo AS VER_Titolo,
    VER.Note AS VER_Note,
    VER.NumeroRPC AS VER_NumeroRPC,
    VER.SogVersatore AS VER_SogVersatore,
    VER.TipoAcquisizione AS VER_TipoAcquisizione,
    VER.DataAcquisizione AS VER_DataAcquisizione,
    VER.NoteDirezione AS VER_NoteDirezione,
    VER.Tipologia AS VER_Tipologia
FROM Elementi E
LEFT JOIN Istituti IST ON IST.ID_Elemento = E.ID_Elemento
LEFT JOIN ComplessiDoc CD ON CD.ID_Elemento = E.ID_Elemento
LEFT JOIN Inventari INV ON INV.ID_Elemento = E.ID_Elemento
LEFT JOIN Versamenti VER ON VER.ID_Elemento = E.ID_Elemento;

CREATE VIEW AlberoPergamene AS
SELECT
    E.ID_Elemento AS ELEM_ID_Elemento,
    E.ID_ElementoPadre AS ELEM_ID_ElementoPadre,
    E.Tipologia AS ELEM_Tipologia,
    E.Denominazione AS ELEM_Denominazione,
    E.Pubblicato AS ELEM_Pubblicato,
    E.DataRedazione AS ELEM_DataRedazione,
    E.Redattore AS ELEM_Redattore,
    E.Figli AS ELEM_Figli,
    E.XmlLink AS ELEM_XmlLink,
    E.Md5Link AS ELEM_Md5Link,
    E.PaginaStart AS ELEM_PaginaStart,
    E.PaginaEnd AS ELEM_PaginaEnd,
    E.StruProg AS ELEM_StruProg,
    PG.ID_Pergamena AS PG_ID_Pergamena,
    PG.ID_Elemento AS PG_ID_Elemento,
    PG.ID_Inventario AS PG_ID_Inventario,
    PG.Segnatura AS PG_Segnatura,
    PG.DataCronicaInizio AS PG_DataCronicaInizio,
    PG.DataCronicaFine AS PG_DataCronicaFine,
    PG.DataTopica AS PG_DataTopica,
    PG.Datazio AS PG_Datazio,
    PG.Regesto AS PG_Regesto,
    PG.Miniatura AS PG_Miniatura,
    PG.SigilliAttuali AS PG_SigilliAttuali,
    PG.SigilliOriginari AS PG_SigilliOriginari,
    PG.Annuncio AS PG_Annuncio,
    PG.Accesso AS PG_Accesso,
    PG.Riproduzione AS PG_Riproduzione,
    PG.Lingua AS PG_Lingua,
    PG.Bibliografia AS PG_Bibliografia,
    PG.NoteDirezione AS PG_NoteDirezione,
    PG.NoteRiproduzione AS PG_NoteRiproduzione,
    PG.Note AS PG_Note,
    PG.UrlLink AS PG_UrlLink,
    PG.DescrizioneEstremi AS PG_DescrizioneEstremi,
    PG.FlgUnitaCond AS PG_FlgUnitaCond,
    SG.ID_Sigillo AS SG_ID_Sigillo,
    SG.ID_Elemento AS SG_ID_Elemento,
    SG.ID_Inventario AS SG_ID_Inventario,
    SG.Identificativo AS SG_Identificativo,
    SG.Tipologia AS SG_Tipologia,
    SG.DataInizio AS SG_DataInizio,
    SG.DataFine AS SG_DataFine,
    SG.Dimensioni AS SG_Dimensioni,
    SG.MateriaNuovo AS SG_MateriaNuovo,
    SG.Colore AS SG_Colore,
    SG.Apposizione AS SG_Apposizione,
    SG.Rapporto AS SG_Rapporto,
    SG.Ruolo AS SG_Ruolo,
    SG.Posizione AS SG_Posizione,
    SG.NoteDirezione AS SG_NoteDirezione,
    SG.Attacchi AS SG_Attacchi,
    SG.Protezione AS SG_Protezione,
    SG.Qualita AS SG_Qualita,
    SG.Conservazione AS SG_Conservazione,
    SG.Segni AS SG_Segni,
    SG.Autenticita AS SG_Autenticita,
    SG.Matrice AS SG_Matrice,
    SG.AltreImpronteSigillo AS SG_AltreImpronteSigillo,
    SG.AltreImpronteTitolare AS SG_AltreImpronteTitolare,
    SG.Edizione AS SG_Edizione,
    SG.Bibliografia AS SG_Bibliografia,
    SG.Accesso AS SG_Accesso,
    SG.Riproduzione AS SG_Riproduzione,
    SG.Note AS SG_Note,
    SG.RifDocNoInv AS SG_RifDocNoInv,
    SG.DescrizioneEstremi AS SG_DescrizioneEstremi,
    SG.UrlLink AS SG_UrlLink,
    SG.FlgUnitaCond AS SG_FlgUnitaCond
FROM Elementi E
LEFT JOIN Pergamene PG ON PG.ID_Elemento = E.ID_Elemento
LEFT JOIN Sigilli SG ON SG.ID_Elemento = E.ID_Elemento
WHERE E.Tipologia IN ('05', '06');

CREATE VIEW AlberoDatiInventariali AS
SELECT
    E.ID_Elemento AS ELEM_ID_Elemento,
    E.ID_ElementoPadre AS ELEM_ID_ElementoPadre,
    E.Tipologia AS ELEM_Tipologia,
    E.Denominazione AS ELEM_Denominazione,
    E.Pubblicato AS ELEM_Pubblicato,
    E.DataRedazione AS ELEM_DataRedazione,
    E.Redattore AS ELEM_Redattore,
    E.Figli AS ELEM_Figli,
    E.XmlLink AS ELEM_XmlLink,
    E.Md5Link AS ELEM_Md5Link,
    E.PaginaStart AS ELEM_PaginaStart,
    E.PaginaEnd AS ELEM_PaginaEnd,
    E.StruProg AS ELEM_StruProg,
    INV.ID_Inventario AS INV_ID_Inventario,
    INV.ID_Elemento AS INV_ID_Elemento,
    INV.ID_Istituto AS INV_ID_Istituto,
    INV.Denominazione AS INV_Denominazione,
    INV.Tipologia AS INV_Tipologia,
    INV.ID_IstitutoSede AS INV_ID_IstitutoSede,
    INV.ID_IstitutoMag AS INV_ID_IstitutoMag,
    INV.AnnoInizio AS INV_AnnoInizio,
    INV.AnnoFine AS INV_AnnoFine,
    INV.DescrizioneEstremi AS INV_DescrizioneEstremi,
    INV.Autore AS INV_Autore,
    INV.TipoInventario AS INV_TipoInventario,
    INV.Note AS INV_Note,
    INV.XmlLink AS INV_XmlLink,
    INV.UrlLink AS INV_UrlLink,
    INV.NoteDirezione AS INV_NoteDirezione,
    INV.SubTipologia AS INV_SubTipologia,
    INV.Edizione AS INV_Edizione,
    INV.NumeroPergamene AS INV_NumeroPergamene,
    INV.NumeroDatiInventariali AS INV_NumeroDatiInventariali,
    INV.NumeroSigilli AS INV_NumeroSigilli,
    INV.TipoInv AS INV_TipoInv,
    INV.NumeroComplessi AS INV_NumeroComplessi,
    INV.DenomCompleta AS INV_DenomCompleta,
    DI.ID_DatoInventariale AS DATIINV_ID_DatoInventariale,
    DI.ID_Elemento AS DATIINV_ID_Elemento,
    DI.ID_Inventario AS DATIINV_ID_Inventario,
    DI.Tipologia AS DATIINV_Tipologia,
    DI.Numero AS DATIINV_Numero,
    DI.Descrizione AS DATIINV_Descrizione,
    DI.DescrizioneTestuale AS DATIINV_DescrizioneTestuale,
    DI.DescrizioneEstremi AS DATIINV_DescrizioneEstremi,
    DI.DataInizio AS DATIINV_DataInizio,
    DI.DataFine AS DATIINV_DataFine,
    DI.Classificazione AS DATIINV_Classificazione,
    DI.Note AS DATIINV_Note,
    DI.CoseNotevoli AS DATIINV_CoseNotevoli,
    DI.Titolo AS DATIINV_Titolo,
    DI.Acquisizione AS DATIINV_Acquisizione,
    DI.CriteriOrdinamento AS DATIINV_CriteriOrdinamento,
    DI.Accesso AS DATIINV_Accesso,
    DI.Riproduzione AS DATIINV_Riproduzione,
    DI.Lingua AS DATIINV_Lingua,
    DI.Conservazione AS DATIINV_Conservazione,
    DI.NoteGestionali AS DATIINV_NoteGestionali,
    DI.Id_ElemComplDoc AS DATIINV_Id_ElemComplDoc,
    DI.FlgUnitaCond AS DATIINV_FlgUnitaCond,
    CASE WHEN TRIM(DI.Ordinamento) <> '' AND TRIM(DI.Ordinamento) NOT GLOB '*[^0-9]*' THEN CAST(TRIM(DI.Ordinamento) AS INTEGER) END AS DATIINV_Ordinamento,
    PG.ID_Pergamena AS PG_ID_Pergamena,
    PG.ID_Elemento AS PG_ID_Elemento,
    PG.ID_Inventario AS PG_ID_Inventario,
    PG.Segnatura AS PG_Segnatura,
    PG.DataCronicaInizio AS PG_DataCronicaInizio,
    PG.DataCronicaFine AS PG_DataCronicaFine,
    PG.DataTopica AS PG_DataTopica,
    PG.Datazio AS PG_Datazio,
    PG.Regesto AS PG_Regesto,
    PG.Miniatura AS PG_Miniatura,
    PG.SigilliAttuali AS PG_SigilliAttuali,
    PG.SigilliOriginari AS PG_SigilliOriginari,
    PG.Annuncio AS PG_Annuncio,
    PG.Accesso AS PG_Accesso,
    PG.Riproduzione AS PG_Riproduzione,
    PG.Lingua AS PG_Lingua,
    PG.Bibliografia AS PG_Bibliografia,
    PG.NoteDirezione AS PG_NoteDirezione,
    PG.NoteRiproduzione AS PG_NoteRiproduzione,
    PG.Note AS PG_Note,
    PG.UrlLink AS PG_UrlLink,
    PG.DescrizioneEstremi AS PG_DescrizioneEstremi,
    PG.FlgUnitaCond AS PG_FlgUnitaCond,
    SG.ID_Sigillo AS SG_ID_Sigillo,
    SG.ID_Elemento AS SG_ID_Elemento,
    SG.ID_Inventario AS SG_ID_Inventario,
    SG.Identificativo AS SG_Identificativo,
    SG.Tipologia AS SG_Tipologia,
    SG.DataInizio AS SG_DataInizio,
    SG.DataFine AS SG_DataFine,
    SG.Dimensioni AS SG_Dimensioni,
    SG.MateriaNuovo AS SG_MateriaNuovo,
    SG.Colore AS SG_Colore,
    SG.Apposizione AS SG_Apposizione,
    SG.Rapporto AS SG_Rapporto,
    SG.Ruolo AS SG_Ruolo,
    SG.Posizione AS SG_Posizione,
    SG.NoteDirezione AS SG_NoteDirezione,
    SG.Attacchi AS SG_Attacchi,
    SG.Protezione AS SG_Protezione,
    SG.Qualita AS SG_Qualita,
    SG.Conservazione AS SG_Conservazione,
    SG.Segni AS SG_Segni,
    SG.Autenticita AS SG_Autenticita,
    SG.Matrice AS SG_Matrice,
    SG.AltreImpronteSigillo AS SG_AltreImpronteSigillo,
    SG.AltreImpronteTitolare AS SG_AltreImpronteTitolare,
    SG.Edizione AS SG_Edizione,
    SG.Bibliografia AS SG_Bibliografia,
    SG.Accesso AS SG_Accesso,
    SG.Riproduzione AS SG_Riproduzione,
    SG.Note AS SG_Note,
    SG.RifDocNoInv AS SG_RifDocNoInv,
    SG.DescrizioneEstremi AS SG_DescrizioneEstremi,
    SG.UrlLink AS SG_UrlLink,
    SG.FlgUnitaCond AS SG_FlgUnitaCond
FROM Elementi E
LEFT JOIN Inventari INV ON INV.ID_Elemento = E.ID_Elemento
LEFT JOIN DatiInventariali DI ON DI.ID_Elemento = E.ID_Elemento
LEFT JOIN Pergamene PG ON PG.ID_Elemento = E.ID_Elemento
LEFT JOIN Sigilli SG ON SG.ID_Elemento = E.ID_Elemento
WHERE E.Tipologia IN ('03', '05', '06', '07');

CREATE VIEW v_istituti AS
SELECT
    E.ID_Elemento AS ELEM_ID_Elemento,
    E.ID_ElementoPadre AS ELEM_ID_ElementoPadre,
    E.Tipologia AS ELEM_Tipologia,
    E.Denominazione AS ELEM_Denominazione,
    E.Pubblicato AS ELEM_Pubblicato,
    E.DataRedazione AS ELEM_DataRedazione,
    E.Redattore AS ELEM_Redattore,
    E.Figli AS ELEM_Figli,
    E.XmlLink AS ELEM_XmlLink,
    E.Md5Link AS ELEM_Md5Link,
    E.PaginaStart AS ELEM_PaginaStart,
    E.PaginaEnd AS ELEM_PaginaEnd,
    E.StruProg AS ELEM_StruProg,
    IST.ID_Istituto AS IST_ID_Istituto,
    IST.ID_Elemento AS IST_ID_Elemento,
    IST.Denominazione AS IST_Denominazione,
    IST.Tipologia AS IST_Tipologia,
    IST.Indirizzo AS IST_Indirizzo,
    IST.Citta AS IST_Citta,
    IST.Cap AS IST_Cap,
    IST.Provincia AS IST_Provincia,
    IST.Telefono AS IST_Telefono,
    IST.Fax AS IST_Fax,
    IST.EMail AS IST_EMail,
    IST.UrlWeb AS IST_UrlWeb,
    IST.Responsabile AS IST_Responsabile,
    IST.Orario AS IST_Orario,
    IST.Note AS IST_Note,
    IST.UrlLink AS IST_UrlLink,
    IST.NoteDirezione AS IST_NoteDirezione,
    IST.NumeroComplessi AS IST_NumeroComplessi,
    IST.NumeroInventari AS IST_NumeroInventari,
    IST.DenomCompleta AS IST_DenomCompleta,
    IST.ISAD_Codice AS IST_ISAD_Codice,
    IST.ISAD_Sigla AS IST_ISAD_Sigla
FROM Elementi E
JOIN Istituti IST ON IST.ID_Elemento = E.ID_Elemento;

CREATE VIEW V_ComplessiDocSoggetti AS
SELECT
    CD.ID_Elemento AS CD_ID_Elemento,
    CD.ID_ComplessoDoc AS CD_ID_ComplessoDoc,
    CD.Denominazione AS CD_Denominazione,
    SOG.ID_Soggetto AS SOG_ID_Soggetto,
    SOG.Denominazione AS SOG_Denominazione,
    SOG.TipoSoggetto AS SOG_TipoSoggetto,
    SOG.Pubblicato AS SOG_Pubblicato,
    SOG.DataRedazione AS SOG_DataRedazione,
    SOG.Redattore AS SOG_Redattore,
    PRS.ID_Persona AS PRS_ID_Persona,
    PRS.ID_Soggetto AS PRS_ID_Soggetto,
    PRS.Nome AS PRS_Nome,
    PRS.Titoli AS PRS_Titoli,
    PRS.DataNascita AS PRS_DataNascita,
    PRS.DataMorte AS PRS_DataMorte,
    PRS.AreaGeografica AS PRS_AreaGeografica,
    PRS.Storia AS PRS_Storia,
    PRS.Note AS PRS_Note,
    PRS.DataInizio AS PRS_DataInizio,
    PRS.DataFine AS PRS_DataFine,
    PRS.DescrizioneEstremi AS PRS_DescrizioneEstremi,
    PRS.LuogoNascita AS PRS_LuogoNascita,
    PRS.LuogoMorte AS PRS_LuogoMorte,
    PRS.NoteDirezione AS PRS_NoteDirezione,
    PRS.ISAD_Nazione AS PRS_ISAD_Nazione,
    PRS.ISAD_Codice AS PRS_ISAD_Codice,
    PRS.ISAD_Sigla AS PRS_ISAD_Sigla,
    FMG.ID_Famiglia AS FMG_ID_Famiglia,
    FMG.ID_Soggetto AS FMG_ID_Soggetto,
    FMG.Nome AS FMG_Nome,
    FMG.Titoli AS FMG_Titoli,
    FMG.Persone AS FMG_Persone,
    FMG.DataInizio AS FMG_DataInizio,
    FMG.DataFine AS FMG_DataFine,
    FMG.DescrizioneEstremi AS FMG_DescrizioneEstremi,
    FMG.AreaGeografica AS FMG_AreaGeografica,
    FMG.Storia AS FMG_Storia,
    FMG.Note AS FMG_Note,
    FMG.NoteDirezione AS FMG_NoteDirezione,
    FMG.ISAD_Nazione AS FMG_ISAD_Nazione,
    FMG.ISAD_Codice AS FMG_ISAD_Codice,
    FMG.ISAD_Sigla AS FMG_ISAD_Sigla,
    EN.ID_Ente AS EN_ID_Ente,
    EN.ID_Soggetto AS EN_ID_Soggetto,
    EN.Denominazione AS EN_Denominazione,
    EN.AreaGeografica AS EN_AreaGeografica,
    EN.NaturaGiuridica AS EN_NaturaGiuridica,
    EN.Storia AS EN_Storia,
    EN.Note AS EN_Note,
    EN.DataInizio AS EN_DataInizio,
    EN.DataFine AS EN_DataFine,
    EN.DescrizioneEstremi AS EN_DescrizioneEstremi,
    EN.Sede AS EN_Sede,
    EN.Profilo AS EN_Profilo,
    EN.NoteDirezione AS EN_NoteDirezione,
    EN.ISAD_Nazione AS EN_ISAD_Nazione,
    EN.ISAD_Codice AS EN_ISAD_Codice,
    EN.ISAD_Sigla AS EN_ISAD_Sigla
FROM ComplessiDocSoggetti L
JOIN ComplessiDoc CD ON CD.ID_ComplessoDoc = L.ID_ComplessoDoc
JOIN Soggetti SOG ON SOG.ID_Soggetto = L.ID_Soggetto
LEFT JOIN Persone PRS ON PRS.ID_Soggetto = SOG.ID_Soggetto
LEFT JOIN Famiglie FMG ON FMG.ID_Soggetto = SOG.ID_Soggetto
LEFT JOIN Enti EN ON EN.ID_Soggetto = SOG.ID_Soggetto;

CREATE VIEW V_DatiInventarialiSoggetti AS
SELECT
    DI.ID_Elemento AS DI_ID_Elemento,
    DI.ID_DatoInventariale AS DI_ID_DatoInventariale,
    DI.Titolo AS DI_Titolo,
    SOG.ID_Soggetto AS SOG_ID_Soggetto,
    SOG.Denominazione AS SOG_Denominazione,
    SOG.TipoSoggetto AS SOG_TipoSoggetto,
    SOG.Pubblicato AS SOG_Pubblicato,
    SOG.DataRedazione AS SOG_DataRedazione,
    SOG.Redattore AS SOG_Redattore,
    PRS.ID_Persona AS PRS_ID_Persona,
    PRS.ID_Soggetto AS PRS_ID_Soggetto,
    PRS.Nome AS PRS_Nome,
    PRS.Titoli AS PRS_Titoli,
    PRS.DataNascita AS PRS_DataNascita,
    PRS.DataMorte AS PRS_DataMorte,
    PRS.AreaGeografica AS PRS_AreaGeografica,
    PRS.Storia AS PRS_Storia,
    PRS.Note AS PRS_Note,
    PRS.DataInizio AS PRS_DataInizio,
    PRS.DataFine AS PRS_DataFine,
    PRS.DescrizioneEstremi AS PRS_DescrizioneEstremi,
    PRS.LuogoNascita AS PRS_LuogoNascita,
    PRS.LuogoMorte AS PRS_LuogoMorte,
    PRS.NoteDirezione AS PRS_NoteDirezione,
    PRS.ISAD_Nazione AS PRS_ISAD_Nazione,
    PRS.ISAD_Codice AS PRS_ISAD_Codice,
    PRS.ISAD_Sigla AS PRS_ISAD_Sigla,
    FMG.ID_Famiglia AS FMG_ID_Famiglia,
    FMG.ID_Soggetto AS FMG_ID_Soggetto,
    FMG.Nome AS FMG_Nome,
    FMG.Titoli AS FMG_Titoli,
    FMG.Persone AS FMG_Persone,
    FMG.DataInizio AS FMG_DataInizio,
    FMG.DataFine AS FMG_DataFine,
    FMG.DescrizioneEstremi AS FMG_DescrizioneEstremi,
    FMG.AreaGeografica AS FMG_AreaGeografica,
    FMG.Storia AS FMG_Storia,
    FMG.Note AS FMG_Note,
    FMG.NoteDirezione AS FMG_NoteDirezione,
    FMG.ISAD_Nazione AS FMG_ISAD_Nazione,
    FMG.ISAD_Codice AS FMG_ISAD_Codice,
    FMG.ISAD_Sigla AS FMG_ISAD_Sigla,
    EN.ID_Ente AS EN_ID_Ente,
    EN.ID_Soggetto AS EN_ID_Soggetto,
    EN.Denominazione AS EN_Denominazione,
    EN.AreaGeografica AS EN_AreaGeografica,
    EN.NaturaGiuridica AS EN_NaturaGiuridica,
    EN.Storia AS EN_Storia,
    EN.Note AS EN_Note,
    EN.DataInizio AS EN_DataInizio,
    EN.DataFine AS EN_DataFine,
    EN.DescrizioneEstremi AS EN_DescrizioneEstremi,
    EN.Sede AS EN_Sede,
    EN.Profilo AS EN_Profilo,
    EN.NoteDirezione AS EN_NoteDirezione,
    EN.ISAD_Nazione AS EN_ISAD_Nazione,
    EN.ISAD_Codice AS EN_ISAD_Codice,
    EN.ISAD_Sigla AS EN_ISAD_Sigla
FROM DatiInventarialiSoggetti L
JOIN DatiInventariali DI ON DI.ID_DatoInventariale = L.ID_DatoInventariale
JOIN Soggetti SOG ON SOG.ID_Soggetto = L.ID_Soggetto
LEFT JOIN Persone PRS ON PRS.ID_Soggetto = SOG.ID_Soggetto
LEFT JOIN Famiglie FMG ON FMG.ID_Soggetto = SOG.ID_Soggetto
LEFT JOIN Enti EN ON EN.ID_Soggetto = SOG.ID_Soggetto;


-- The database's duties.

CREATE TRIGGER Elementi_Inserimento AFTER INSERT ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi')
BEGIN
    UPDATE Elementi SET Code = (SELECT Code FROM Config) WHERE ID_Elemento = NEW.ID_Elemento AND Code IS NULL;
    UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre;
    INSERT INTO Istituti (ID_Istituto, ID_Elemento, Code, Denominazione, DenomCompleta)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione
        WHERE NEW.Tipologia = '01' AND NOT EXISTS (SELECT 1 FROM Istituti WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO ComplessiDoc (ID_ComplessoDoc, ID_Elemento, Code, Denominazione, DenomCompleta, ID_Istituto, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione, COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)), 'IT', (SELECT ISAD_Codice FROM Istituti WHERE ID_Istituto = COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre))), (SELECT ISAD_Sigla FROM Istituti WHERE ID_Istituto = COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)))
        WHERE NEW.Tipologia = '02' AND NOT EXISTS (SELECT 1 FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO Inventari (ID_Inventario, ID_Elemento, Code, Denominazione, DenomCompleta, ID_Istituto)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione, COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre))
        WHERE NEW.Tipologia = '03' AND NOT EXISTS (SELECT 1 FROM Inventari WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO Versamenti (ID_Versamento, ID_Elemento, Code, ID_Istituto, Titolo)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)), NEW.Denominazione
        WHERE NEW.Tipologia = '04' AND NOT EXISTS (SELECT 1 FROM Versamenti WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO Pergamene (ID_Pergamena, ID_Elemento, Code, Segnatura, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre))
        WHERE NEW.Tipologia = '05' AND NOT EXISTS (SELECT 1 FROM Pergamene WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO Sigilli (ID_Sigillo, ID_Elemento, Code, Identificativo, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre))
        WHERE NEW.Tipologia = '06' AND NOT EXISTS (SELECT 1 FROM Sigilli WHERE ID_Elemento = NEW.ID_Elemento);
    INSERT INTO DatiInventariali (ID_DatoInventariale, ID_Elemento, Code, Titolo, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre))
        WHERE NEW.Tipologia = '07' AND NOT EXISTS (SELECT 1 FROM DatiInventariali WHERE ID_Elemento = NEW.ID_Elemento);
END;

CREATE TRIGGER Elementi_FigliPresenti BEFORE DELETE ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi')
BEGIN
    SELECT RAISE(ABORT, 'Eliminazione rifiutata: l''elemento ha ancora elementi figli.') WHERE EXISTS (SELECT 1 FROM Elementi WHERE ID_ElementoPadre = OLD.ID_Elemento);
END;

CREATE TRIGGER Elementi_Eliminazione AFTER DELETE ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi')
BEGIN
    UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    UPDATE PGTraditio SET ID_Elemento = NULL WHERE ID_Elemento = OLD.ID_Elemento;
    UPDATE DatiInventariali SET Id_ElemComplDoc = 0 WHERE Id_ElemComplDoc = OLD.ID_Elemento;
    DELETE FROM Istituti WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM ComplessiDoc WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM Inventari WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM Versamenti WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM Pergamene WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM Sigilli WHERE ID_Elemento = OLD.ID_Elemento;
    DELETE FROM DatiInventariali WHERE ID_Elemento = OLD.ID_Elemento;
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = OLD.ID_ElementoPadre;
END;

CREATE TRIGGER Elementi_Padre AFTER UPDATE OF ID_ElementoPadre ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi') AND (OLD.ID_ElementoPadre IS DISTINCT FROM NEW.ID_ElementoPadre)
BEGIN
    UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre;
    UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre;
END;

CREATE TRIGGER Elementi_Denominazione AFTER UPDATE OF Denominazione ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi') AND (NEW.Tipologia = '04' AND OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Versamenti SET Titolo = NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER Istituti_Eliminazione AFTER DELETE ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti')
BEGIN
    UPDATE ComplessiDoc SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto;
    UPDATE ComplessiDoc SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto;
    UPDATE Inventari SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto;
    UPDATE Inventari SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER Istituti_Nome AFTER UPDATE OF Denominazione ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE Istituti SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER ComplessiDoc_Eliminazione AFTER DELETE ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc')
BEGIN
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento);
    DELETE FROM ComplessiDocDenominazioni WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    DELETE FROM ComplessiDocSoggetti WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    UPDATE RigheVersamento SET ID_ComplessoDoc = 0 WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER ComplessiDoc_Inserimento AFTER INSERT ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc')
BEGIN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

CREATE TRIGGER ComplessiDoc_Spostamento AFTER UPDATE OF ID_Istituto ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto)
BEGIN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

CREATE TRIGGER ComplessiDoc_Nome AFTER UPDATE OF Denominazione ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER Inventari_Eliminazione AFTER DELETE ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari')
BEGIN
    DELETE FROM InventariDenominazioni WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER Inventari_Inserimento AFTER INSERT ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari')
BEGIN
    UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

CREATE TRIGGER Inventari_Spostamento AFTER UPDATE OF ID_Istituto ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto)
BEGIN
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

CREATE TRIGGER Inventari_Nome AFTER UPDATE OF Denominazione ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE Inventari SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER Versamenti_Eliminazione AFTER DELETE ON Versamenti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Versamenti')
BEGIN
    DELETE FROM RigheVersamento WHERE ID_Versamento = OLD.ID_Versamento;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER Pergamene_Eliminazione AFTER DELETE ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene')
BEGIN
    DELETE FROM PGSupporti WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGTraditio WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGEleGrafici WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGNoteStoriche WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGNotazioni WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGAltreSegnature WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGAntroponimi WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGToponimi WHERE ID_Pergamena = OLD.ID_Pergamena;
    DELETE FROM PGSigilli WHERE ID_Pergamena = OLD.ID_Pergamena;
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER Pergamene_Inserimento AFTER INSERT ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene')
BEGIN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER Pergamene_Spostamento AFTER UPDATE OF ID_Inventario ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER Pergamene_Nome AFTER UPDATE OF Segnatura ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene') AND (OLD.Segnatura IS DISTINCT FROM NEW.Segnatura)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Segnatura, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER Sigilli_Eliminazione AFTER DELETE ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli')
BEGIN
    DELETE FROM SGTipo WHERE ID_Sigillo = OLD.ID_Sigillo;
    DELETE FROM SGTitolari WHERE ID_Sigillo = OLD.ID_Sigillo;
    DELETE FROM PGSigilli WHERE ID_Sigillo = OLD.ID_Sigillo;
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER Sigilli_Inserimento AFTER INSERT ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli')
BEGIN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER Sigilli_Spostamento AFTER UPDATE OF ID_Inventario ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER Sigilli_Nome AFTER UPDATE OF Identificativo ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli') AND (OLD.Identificativo IS DISTINCT FROM NEW.Identificativo)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Identificativo, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER DatiInventariali_Eliminazione AFTER DELETE ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali')
BEGIN
    DELETE FROM DICoseNotevoli WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DIAntroponimi WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DIToponimi WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DatiInventarialiSoggetti WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

CREATE TRIGGER DatiInventariali_Inserimento AFTER INSERT ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali')
BEGIN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER DatiInventariali_Spostamento AFTER UPDATE OF ID_Inventario ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

CREATE TRIGGER DatiInventariali_Nome AFTER UPDATE OF Titolo ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali') AND (OLD.Titolo IS DISTINCT FROM NEW.Titolo)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Titolo, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

CREATE TRIGGER Istituti_DenomCompleta AFTER UPDATE OF DenomCompleta ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

CREATE TRIGGER ComplessiDoc_DenomCompleta AFTER UPDATE OF DenomCompleta ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

CREATE TRIGGER Inventari_DenomCompleta AFTER UPDATE OF DenomCompleta ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

CREATE TRIGGER Istituti_Codici AFTER UPDATE OF ISAD_Codice, ISAD_Sigla ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.ISAD_Codice IS DISTINCT FROM NEW.ISAD_Codice OR OLD.ISAD_Sigla IS DISTINCT FROM NEW.ISAD_Sigla)
BEGIN
    UPDATE ComplessiDoc SET ISAD_Codice = NEW.ISAD_Codice, ISAD_Sigla = NEW.ISAD_Sigla WHERE ID_Istituto = NEW.ID_Istituto;
END;

CREATE TRIGGER ComplessiDoc_Valore AFTER UPDATE OF Quantita, KConservazione, KPeriodo, KSupporto, KRilevanza, KRarita ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.Quantita IS DISTINCT FROM NEW.Quantita OR OLD.KConservazione IS DISTINCT FROM NEW.KConservazione OR OLD.KPeriodo IS DISTINCT FROM NEW.KPeriodo OR OLD.KSupporto IS DISTINCT FROM NEW.KSupporto OR OLD.KRilevanza IS DISTINCT FROM NEW.KRilevanza OR OLD.KRarita IS DISTINCT FROM NEW.KRarita)
BEGIN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc;
END;

CREATE TRIGGER ComplessiDoc_Riporto AFTER UPDATE OF Quantita, QuantitaFigli, MetriLineari, MetriLineariFigli, Valore, ValoreFigli, DataInizio, DataFine, DataInizioFigli, DataFineFigli ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (COALESCE(NULLIF(OLD.Quantita, 0), OLD.QuantitaFigli, 0) <> COALESCE(NULLIF(NEW.Quantita, 0), NEW.QuantitaFigli, 0) OR COALESCE(NULLIF(OLD.MetriLineari, 0), OLD.MetriLineariFigli, 0) <> COALESCE(NULLIF(NEW.MetriLineari, 0), NEW.MetriLineariFigli, 0) OR COALESCE(NULLIF(OLD.Valore, 0), OLD.ValoreFigli, 0) <> COALESCE(NULLIF(NEW.Valore, 0), NEW.ValoreFigli, 0) OR OLD.DataInizio IS DISTINCT FROM NEW.DataInizio OR OLD.DataFine IS DISTINCT FROM NEW.DataFine OR OLD.DataInizioFigli IS DISTINCT FROM NEW.DataInizioFigli OR OLD.DataFineFigli IS DISTINCT FROM NEW.DataFineFigli)
BEGIN
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
END;

CREATE TRIGGER ComplessiDoc_Riporto_Nuovo AFTER INSERT ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (COALESCE(NEW.Quantita, 0) <> 0 OR COALESCE(NEW.QuantitaFigli, 0) <> 0 OR COALESCE(NEW.MetriLineari, 0) <> 0 OR COALESCE(NEW.MetriLineariFigli, 0) <> 0 OR COALESCE(NEW.Valore, 0) <> 0 OR COALESCE(NEW.ValoreFigli, 0) <> 0 OR COALESCE(NEW.DataInizio, 0) <> 0 OR COALESCE(NEW.DataFine, 0) <> 0 OR COALESCE(NEW.DataInizioFigli, 0) <> 0 OR COALESCE(NEW.DataFineFigli, 0) <> 0 OR COALESCE(NEW.KConservazione, 0) <> 0 OR COALESCE(NEW.KPeriodo, 0) <> 0 OR COALESCE(NEW.KSupporto, 0) <> 0 OR COALESCE(NEW.KRilevanza, 0) <> 0 OR COALESCE(NEW.KRarita, 0) <> 0)
BEGIN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND Valore IS DISTINCT FROM COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0);
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
END;

CREATE TRIGGER Links_Inserimento AFTER INSERT ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links')
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari + 1 WHERE ID_Elemento = NEW.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Elemento = NEW.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento) = '02';
END;

CREATE TRIGGER Links_Eliminazione AFTER DELETE ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links')
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari - 1 WHERE ID_Elemento = OLD.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Elemento = OLD.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento) = '02';
END;

CREATE TRIGGER Soggetti_Inserimento AFTER INSERT ON Soggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Soggetti')
BEGIN
    INSERT INTO Persone (ID_Persona, ID_Soggetto, Nome, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1)
        WHERE NEW.TipoSoggetto = 'P' AND NOT EXISTS (SELECT 1 FROM Persone WHERE ID_Soggetto = NEW.ID_Soggetto);
    INSERT INTO Famiglie (ID_Famiglia, ID_Soggetto, Nome, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1)
        WHERE NEW.TipoSoggetto = 'F' AND NOT EXISTS (SELECT 1 FROM Famiglie WHERE ID_Soggetto = NEW.ID_Soggetto);
    INSERT INTO Enti (ID_Ente, ID_Soggetto, Denominazione, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1)
        WHERE NEW.TipoSoggetto = 'E' AND NOT EXISTS (SELECT 1 FROM Enti WHERE ID_Soggetto = NEW.ID_Soggetto);
END;

CREATE TRIGGER Soggetti_Eliminazione AFTER DELETE ON Soggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Soggetti')
BEGIN
    DELETE FROM Persone WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Famiglie WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Enti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM ComplessiDocSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM DatiInventarialiSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

CREATE TRIGGER Persone_Nome AFTER UPDATE OF Nome ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone') AND (OLD.Nome IS DISTINCT FROM NEW.Nome)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER Persone_Codici AFTER UPDATE OF Nome ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Persone SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Persona = NEW.ID_Persona;
END;

CREATE TRIGGER Persone_Eliminazione AFTER DELETE ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone')
BEGIN
    DELETE FROM PersoneDenominazioni WHERE ID_Persona = OLD.ID_Persona;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

CREATE TRIGGER Famiglie_Nome AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie') AND (OLD.Nome IS DISTINCT FROM NEW.Nome)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER Famiglie_Codici AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Famiglie SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Famiglia = NEW.ID_Famiglia;
END;

CREATE TRIGGER Famiglie_Eliminazione AFTER DELETE ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie')
BEGIN
    DELETE FROM FamiglieDenominazioni WHERE ID_Famiglia = OLD.ID_Famiglia;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

CREATE TRIGGER Enti_Nome AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER Enti_Codici AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Enti SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Ente = NEW.ID_Ente;
END;

CREATE TRIGGER Enti_Eliminazione AFTER DELETE ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti')
BEGIN
    DELETE FROM EntiDenominazioni WHERE ID_Ente = OLD.ID_Ente;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

CREATE TRIGGER Antroponimi_Eliminazione AFTER DELETE ON Antroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Antroponimi')
BEGIN
    DELETE FROM PGAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
    DELETE FROM DIAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
END;

CREATE TRIGGER Toponimi_Eliminazione AFTER DELETE ON Toponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Toponimi')
BEGIN
    DELETE FROM PGToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
    DELETE FROM DIToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
END;

CREATE TRIGGER Titolari_Eliminazione AFTER DELETE ON Titolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Titolari')
BEGIN
    DELETE FROM SGTitolari WHERE ID_Titolare = OLD.ID_Titolare;
END;

CREATE TRIGGER Links_Codice AFTER INSERT ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Links SET Code = (SELECT Code FROM Config) WHERE ID_Elemento = NEW.ID_Elemento AND ID_ElementoLink = NEW.ID_ElementoLink;
END;

CREATE TRIGGER RigheVersamento_Codice AFTER INSERT ON RigheVersamento FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'RigheVersamento') AND (NEW.Code IS NULL)
BEGIN
    UPDATE RigheVersamento SET Code = (SELECT Code FROM Config) WHERE ID_RigaVersamento = NEW.ID_RigaVersamento;
END;

CREATE TRIGGER PGNotazioni_Codice AFTER INSERT ON PGNotazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGNotazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGNotazioni SET Code = (SELECT Code FROM Config) WHERE ID_PgNotazione = NEW.ID_PgNotazione;
END;

CREATE TRIGGER PGAltreSegnature_Codice AFTER INSERT ON PGAltreSegnature FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGAltreSegnature') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGAltreSegnature SET Code = (SELECT Code FROM Config) WHERE ID_PGAltraSegnatura = NEW.ID_PGAltraSegnatura;
END;

CREATE TRIGGER PGSigilli_Codice AFTER INSERT ON PGSigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGSigilli') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGSigilli SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Sigillo = NEW.ID_Sigillo;
END;

CREATE TRIGGER DICoseNotevoli_Codice AFTER INSERT ON DICoseNotevoli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DICoseNotevoli') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DICoseNotevoli SET Code = (SELECT Code FROM Config) WHERE ID_DICosaNotevole = NEW.ID_DICosaNotevole;
END;

CREATE TRIGGER Soggetti_Codice AFTER INSERT ON Soggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Soggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Soggetti SET Code = (SELECT Code FROM Config) WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER ComplessiDocDenominazioni_Codice AFTER INSERT ON ComplessiDocDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDocDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE ComplessiDocDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

CREATE TRIGGER InventariDenominazioni_Codice AFTER INSERT ON InventariDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'InventariDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE InventariDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

CREATE TRIGGER PersoneDenominazioni_Codice AFTER INSERT ON PersoneDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PersoneDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PersoneDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

CREATE TRIGGER FamiglieDenominazioni_Codice AFTER INSERT ON FamiglieDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'FamiglieDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE FamiglieDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

CREATE TRIGGER EntiDenominazioni_Codice AFTER INSERT ON EntiDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'EntiDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE EntiDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

CREATE TRIGGER Antroponimi_Codice AFTER INSERT ON Antroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Antroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Antroponimi SET Code = (SELECT Code FROM Config) WHERE ID_Antroponimo = NEW.ID_Antroponimo;
END;

CREATE TRIGGER Toponimi_Codice AFTER INSERT ON Toponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Toponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Toponimi SET Code = (SELECT Code FROM Config) WHERE ID_Toponimo = NEW.ID_Toponimo;
END;

CREATE TRIGGER Titolari_Codice AFTER INSERT ON Titolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Titolari') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Titolari SET Code = (SELECT Code FROM Config) WHERE ID_Titolare = NEW.ID_Titolare;
END;

CREATE TRIGGER ComplessiDocSoggetti_Codice AFTER INSERT ON ComplessiDocSoggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDocSoggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE ComplessiDocSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER DatiInventarialiSoggetti_Codice AFTER INSERT ON DatiInventarialiSoggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventarialiSoggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DatiInventarialiSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Soggetto = NEW.ID_Soggetto;
END;

CREATE TRIGGER PGAntroponimi_Codice AFTER INSERT ON PGAntroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGAntroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_PGAntroponimo = NEW.ID_PGAntroponimo;
END;

CREATE TRIGGER DIAntroponimi_Codice AFTER INSERT ON DIAntroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DIAntroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DIAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_DIAntroponimo = NEW.ID_DIAntroponimo;
END;

CREATE TRIGGER PGToponimi_Codice AFTER INSERT ON PGToponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGToponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGToponimi SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Toponimo = NEW.ID_Toponimo;
END;

CREATE TRIGGER DIToponimi_Codice AFTER INSERT ON DIToponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DIToponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DIToponimi SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Toponimo = NEW.ID_Toponimo;
END;

CREATE TRIGGER SGTitolari_Codice AFTER INSERT ON SGTitolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'SGTitolari') AND (NEW.Code IS NULL)
BEGIN
    UPDATE SGTitolari SET Code = (SELECT Code FROM Config) WHERE ID_SGTitolare = NEW.ID_SGTitolare;
END;

CREATE TRIGGER Pergamene_Righe AFTER INSERT ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene')
BEGIN
    INSERT INTO PGSupporti (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM PGSupporti WHERE ID_Pergamena = NEW.ID_Pergamena);
    INSERT INTO PGTraditio (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM PGTraditio WHERE ID_Pergamena = NEW.ID_Pergamena);
    INSERT INTO PGEleGrafici (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM PGEleGrafici WHERE ID_Pergamena = NEW.ID_Pergamena);
    INSERT INTO PGNoteStoriche (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM PGNoteStoriche WHERE ID_Pergamena = NEW.ID_Pergamena);
END;

CREATE TRIGGER Sigilli_Righe AFTER INSERT ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli')
BEGIN
    INSERT INTO SGTipo (ID_Sigillo, Code)
        SELECT NEW.ID_Sigillo, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM SGTipo WHERE ID_Sigillo = NEW.ID_Sigillo);
END;


-- The full-text index of the web index (rebuilt with it).
CREATE VIRTUAL TABLE IndiceWebTesto USING fts5(Denominazione, DenomCompleta, content='IndiceWeb', content_rowid='ID_Elemento', tokenize='unicode61 remove_diacritics 2');


-- The site's settings: a placeholder code until the site's identity is given.
INSERT INTO Config (Code, Descrizione, Versione, ID_Start, ID_End, Valore, DataValore)
VALUES ('SITO', NULL, 4, 1, 999999999, 0, NULL);
