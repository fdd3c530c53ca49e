-- Tabellion Archivista: the upgrade of a site's database to schema version 4, from
-- any earlier version; on a current database it changes nothing. Run by tabellion-sql
-- (menu Strumenti > Aggiorna versione, or by hand) under a login that may change the
-- schema: on PostgreSQL the administrator's, which acts as the database's owner.
-- tabellion-sql runs only the part of the connection's server.
-- Written by db/genera_schema.py: change that file and run it again, not this one.

-- Server: SQLite
CREATE TABLE IF NOT EXISTS TriggerSospesi (
    Tabella VARCHAR(64) NOT NULL COLLATE NOCASE PRIMARY KEY
);

CREATE TABLE IF NOT EXISTS Config (
    Code VARCHAR(10) COLLATE NOCASE NOT NULL,
    Descrizione VARCHAR(255) COLLATE NOCASE,
    Versione REAL,
    ID_Start INTEGER NOT NULL,
    ID_End INTEGER NOT NULL,
    Valore REAL NOT NULL DEFAULT 0,
    DataValore VARCHAR(20) COLLATE NOCASE,
    PRIMARY KEY (Code)
);

CREATE TABLE IF NOT EXISTS Elementi (
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
CREATE INDEX IF NOT EXISTS Elementi_ID_ElementoPadre ON Elementi (ID_ElementoPadre);

CREATE TABLE IF NOT EXISTS Links (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoLink INTEGER NOT NULL,
    Specifica VARCHAR(255) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Elemento, ID_ElementoLink)
);
CREATE INDEX IF NOT EXISTS Links_ID_ElementoLink ON Links (ID_ElementoLink);

CREATE TABLE IF NOT EXISTS Istituti (
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
CREATE UNIQUE INDEX IF NOT EXISTS Istituti_U1 ON Istituti (ID_Elemento);
CREATE INDEX IF NOT EXISTS Istituti_Tipologia ON Istituti (Tipologia);

CREATE TABLE IF NOT EXISTS CodiciIstituto (
    ID_CodiceIstituto INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE,
    ISAD_Codice VARCHAR(16) COLLATE NOCASE,
    ISAD_Sigla VARCHAR(16) COLLATE NOCASE,
    PRIMARY KEY (ID_CodiceIstituto)
);
CREATE INDEX IF NOT EXISTS CodiciIstituto_ISAD_Codice_ISAD_Sigla ON CodiciIstituto (ISAD_Codice, ISAD_Sigla);
CREATE INDEX IF NOT EXISTS CodiciIstituto_Denominazione ON CodiciIstituto (Denominazione);

CREATE TABLE IF NOT EXISTS Provincie (
    Provincia VARCHAR(4) COLLATE NOCASE NOT NULL,
    NomeProvincia VARCHAR(64) COLLATE NOCASE,
    PRIMARY KEY (Provincia)
);
CREATE INDEX IF NOT EXISTS Provincie_NomeProvincia ON Provincie (NomeProvincia);

CREATE TABLE IF NOT EXISTS ComplessiDoc (
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
CREATE UNIQUE INDEX IF NOT EXISTS ComplessiDoc_U1 ON ComplessiDoc (ID_Elemento);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_Istituto ON ComplessiDoc (ID_Istituto);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_IstitutoSede ON ComplessiDoc (ID_IstitutoSede);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_IstitutoMag ON ComplessiDoc (ID_IstitutoMag);

CREATE TABLE IF NOT EXISTS Inventari (
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
CREATE UNIQUE INDEX IF NOT EXISTS Inventari_U1 ON Inventari (ID_Elemento);
CREATE INDEX IF NOT EXISTS Inventari_ID_Istituto ON Inventari (ID_Istituto);
CREATE INDEX IF NOT EXISTS Inventari_ID_IstitutoSede ON Inventari (ID_IstitutoSede);
CREATE INDEX IF NOT EXISTS Inventari_ID_IstitutoMag ON Inventari (ID_IstitutoMag);
CREATE INDEX IF NOT EXISTS Inventari_Denominazione ON Inventari (Denominazione);

CREATE TABLE IF NOT EXISTS DatiInventariali (
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
CREATE UNIQUE INDEX IF NOT EXISTS DatiInventariali_U1 ON DatiInventariali (ID_Elemento);
CREATE INDEX IF NOT EXISTS DatiInventariali_ID_Inventario ON DatiInventariali (ID_Inventario);
CREATE INDEX IF NOT EXISTS DatiInventariali_Id_ElemComplDoc ON DatiInventariali (Id_ElemComplDoc);

CREATE TABLE IF NOT EXISTS Versamenti (
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
CREATE UNIQUE INDEX IF NOT EXISTS Versamenti_U1 ON Versamenti (ID_Elemento);
CREATE INDEX IF NOT EXISTS Versamenti_ID_Istituto ON Versamenti (ID_Istituto);

CREATE TABLE IF NOT EXISTS RigheVersamento (
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
CREATE INDEX IF NOT EXISTS RigheVersamento_ID_Versamento ON RigheVersamento (ID_Versamento);
CREATE INDEX IF NOT EXISTS RigheVersamento_ID_ComplessoDoc ON RigheVersamento (ID_ComplessoDoc);

CREATE TABLE IF NOT EXISTS Pergamene (
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
CREATE UNIQUE INDEX IF NOT EXISTS Pergamene_U1 ON Pergamene (ID_Elemento);
CREATE INDEX IF NOT EXISTS Pergamene_ID_Inventario ON Pergamene (ID_Inventario);

CREATE TABLE IF NOT EXISTS PGSupporti (
    ID_Pergamena INTEGER NOT NULL,
    Supporto VARCHAR(32) COLLATE NOCASE,
    StatoConservazione VARCHAR(256) COLLATE NOCASE,
    Dimensioni VARCHAR(32) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE IF NOT EXISTS PGTraditio (
    ID_Pergamena INTEGER NOT NULL,
    Traditio VARCHAR(2) COLLATE NOCASE,
    DataCopia INTEGER,
    Rogatario VARCHAR(512) COLLATE NOCASE,
    DataCopiaTesto VARCHAR(64) COLLATE NOCASE,
    ID_Elemento INTEGER,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);
CREATE INDEX IF NOT EXISTS PGTraditio_ID_Elemento ON PGTraditio (ID_Elemento);

CREATE TABLE IF NOT EXISTS PGEleGrafici (
    ID_Pergamena INTEGER NOT NULL,
    NoteGrafiche VARCHAR(512) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE IF NOT EXISTS PGNoteStoriche (
    ID_Pergamena INTEGER NOT NULL,
    NoteStoriche VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena)
);

CREATE TABLE IF NOT EXISTS PGNotazioni (
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
CREATE INDEX IF NOT EXISTS PGNotazioni_ID_Pergamena ON PGNotazioni (ID_Pergamena);

CREATE TABLE IF NOT EXISTS PGAltreSegnature (
    ID_PGAltraSegnatura INTEGER NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    Segnatura VARCHAR(128) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_PGAltraSegnatura)
);
CREATE INDEX IF NOT EXISTS PGAltreSegnature_ID_Pergamena ON PGAltreSegnature (ID_Pergamena);

CREATE TABLE IF NOT EXISTS PGSigilli (
    ID_Pergamena INTEGER NOT NULL,
    ID_Sigillo INTEGER NOT NULL DEFAULT 0,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena, ID_Sigillo)
);
CREATE INDEX IF NOT EXISTS PGSigilli_ID_Sigillo ON PGSigilli (ID_Sigillo);

CREATE TABLE IF NOT EXISTS Sigilli (
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
CREATE UNIQUE INDEX IF NOT EXISTS Sigilli_U1 ON Sigilli (ID_Elemento);
CREATE INDEX IF NOT EXISTS Sigilli_ID_Inventario ON Sigilli (ID_Inventario);

CREATE TABLE IF NOT EXISTS SGTipo (
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

CREATE TABLE IF NOT EXISTS DICoseNotevoli (
    ID_DICosaNotevole INTEGER NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    Descrizione TEXT COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DICosaNotevole)
);
CREATE INDEX IF NOT EXISTS DICoseNotevoli_ID_DatoInventariale ON DICoseNotevoli (ID_DatoInventariale);

CREATE TABLE IF NOT EXISTS Soggetti (
    ID_Soggetto INTEGER NOT NULL,
    Denominazione VARCHAR(256) COLLATE NOCASE NOT NULL DEFAULT '',
    TipoSoggetto VARCHAR(1) COLLATE NOCASE NOT NULL,
    Pubblicato VARCHAR(1) COLLATE NOCASE,
    DataRedazione DATETIME,
    Redattore VARCHAR(64) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Soggetto)
);
CREATE INDEX IF NOT EXISTS Soggetti_TipoSoggetto ON Soggetti (TipoSoggetto);
CREATE INDEX IF NOT EXISTS Soggetti_Denominazione ON Soggetti (Denominazione);

CREATE TABLE IF NOT EXISTS Persone (
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
CREATE UNIQUE INDEX IF NOT EXISTS Persone_U1 ON Persone (ID_Soggetto);

CREATE TABLE IF NOT EXISTS Famiglie (
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
CREATE UNIQUE INDEX IF NOT EXISTS Famiglie_U1 ON Famiglie (ID_Soggetto);

CREATE TABLE IF NOT EXISTS Enti (
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
CREATE UNIQUE INDEX IF NOT EXISTS Enti_U1 ON Enti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS ComplessiDocDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_ComplessoDoc INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX IF NOT EXISTS ComplessiDocDenominazioni_ID_ComplessoDoc ON ComplessiDocDenominazioni (ID_ComplessoDoc);

CREATE TABLE IF NOT EXISTS InventariDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Inventario INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX IF NOT EXISTS InventariDenominazioni_ID_Inventario ON InventariDenominazioni (ID_Inventario);

CREATE TABLE IF NOT EXISTS PersoneDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Persona INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX IF NOT EXISTS PersoneDenominazioni_ID_Persona ON PersoneDenominazioni (ID_Persona);

CREATE TABLE IF NOT EXISTS FamiglieDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Famiglia INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX IF NOT EXISTS FamiglieDenominazioni_ID_Famiglia ON FamiglieDenominazioni (ID_Famiglia);

CREATE TABLE IF NOT EXISTS EntiDenominazioni (
    ID_Denominazione INTEGER NOT NULL,
    ID_Ente INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) COLLATE NOCASE DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Denominazione)
);
CREATE INDEX IF NOT EXISTS EntiDenominazioni_ID_Ente ON EntiDenominazioni (ID_Ente);

CREATE TABLE IF NOT EXISTS Antroponimi (
    ID_Antroponimo INTEGER NOT NULL,
    Nome VARCHAR(128) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(256) COLLATE NOCASE,
    Note VARCHAR(512) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Antroponimo)
);
CREATE INDEX IF NOT EXISTS Antroponimi_Nome ON Antroponimi (Nome);

CREATE TABLE IF NOT EXISTS Toponimi (
    ID_Toponimo INTEGER NOT NULL,
    Denominazione VARCHAR(64) COLLATE NOCASE NOT NULL DEFAULT '',
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Toponimo)
);
CREATE INDEX IF NOT EXISTS Toponimi_Denominazione ON Toponimi (Denominazione);

CREATE TABLE IF NOT EXISTS Titolari (
    ID_Titolare INTEGER NOT NULL,
    Nome VARCHAR(128) COLLATE NOCASE NOT NULL DEFAULT '',
    Titoli VARCHAR(256) COLLATE NOCASE,
    Note VARCHAR(1024) COLLATE NOCASE,
    Bibliografia VARCHAR(1024) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Titolare)
);
CREATE INDEX IF NOT EXISTS Titolari_Nome ON Titolari (Nome);

CREATE TABLE IF NOT EXISTS ComplessiDocSoggetti (
    ID_ComplessoDoc INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_ComplessoDoc, ID_Soggetto)
);
CREATE INDEX IF NOT EXISTS ComplessiDocSoggetti_ID_Soggetto ON ComplessiDocSoggetti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS DatiInventarialiSoggetti (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DatoInventariale, ID_Soggetto)
);
CREATE INDEX IF NOT EXISTS DatiInventarialiSoggetti_ID_Soggetto ON DatiInventarialiSoggetti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS PGAntroponimi (
    ID_PGAntroponimo INTEGER NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Ruolo VARCHAR(32) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_PGAntroponimo)
);
CREATE UNIQUE INDEX IF NOT EXISTS PGAntroponimi_U1 ON PGAntroponimi (ID_Pergamena, ID_Antroponimo);
CREATE INDEX IF NOT EXISTS PGAntroponimi_ID_Antroponimo ON PGAntroponimi (ID_Antroponimo);

CREATE TABLE IF NOT EXISTS DIAntroponimi (
    ID_DIAntroponimo INTEGER NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DIAntroponimo)
);
CREATE UNIQUE INDEX IF NOT EXISTS DIAntroponimi_U1 ON DIAntroponimi (ID_DatoInventariale, ID_Antroponimo);
CREATE INDEX IF NOT EXISTS DIAntroponimi_ID_Antroponimo ON DIAntroponimi (ID_Antroponimo);

CREATE TABLE IF NOT EXISTS PGToponimi (
    ID_Pergamena INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_Pergamena, ID_Toponimo)
);
CREATE INDEX IF NOT EXISTS PGToponimi_ID_Toponimo ON PGToponimi (ID_Toponimo);

CREATE TABLE IF NOT EXISTS DIToponimi (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_DatoInventariale, ID_Toponimo)
);
CREATE INDEX IF NOT EXISTS DIToponimi_ID_Toponimo ON DIToponimi (ID_Toponimo);

CREATE TABLE IF NOT EXISTS SGTitolari (
    ID_SGTitolare INTEGER NOT NULL,
    ID_Sigillo INTEGER NOT NULL,
    ID_Titolare INTEGER NOT NULL,
    Ruolo VARCHAR(32) COLLATE NOCASE,
    Code VARCHAR(10) COLLATE NOCASE,
    PRIMARY KEY (ID_SGTitolare)
);
CREATE UNIQUE INDEX IF NOT EXISTS SGTitolari_U1 ON SGTitolari (ID_Sigillo, ID_Titolare);
CREATE INDEX IF NOT EXISTS SGTitolari_ID_Titolare ON SGTitolari (ID_Titolare);

CREATE TABLE IF NOT EXISTS MD5Location (
    MD5 VARCHAR(32) COLLATE NOCASE NOT NULL,
    LogicalPath VARCHAR(1024) COLLATE NOCASE,
    XmlName VARCHAR(256) COLLATE NOCASE,
    Status INTEGER DEFAULT 0,
    PRIMARY KEY (MD5)
);

CREATE TABLE IF NOT EXISTS ImgCounter (
    PhisicalPath VARCHAR(1024) COLLATE NOCASE NOT NULL,
    Counter INTEGER,
    PRIMARY KEY (PhisicalPath)
);

CREATE TABLE IF NOT EXISTS IndiceWeb (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoPadre INTEGER,
    Tipologia VARCHAR(2) COLLATE NOCASE NOT NULL,
    Denominazione VARCHAR(512) COLLATE NOCASE,
    DenomCompleta TEXT COLLATE NOCASE,
    DataInizio INTEGER,
    DataFine INTEGER,
    PRIMARY KEY (ID_Elemento)
);
CREATE INDEX IF NOT EXISTS IndiceWeb_ID_ElementoPadre ON IndiceWeb (ID_ElementoPadre);
CREATE INDEX IF NOT EXISTS IndiceWeb_Tipologia ON IndiceWeb (Tipologia);

DROP VIEW IF EXISTS AlberoGlobale;
CREATE TEMP TABLE Versamenti_Copia AS SELECT * FROM Versamenti;
DROP TABLE Versamenti;
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
INSERT INTO Versamenti (ID_Versamento, ID_Elemento, ID_Istituto, Data, Titolo, Note, NumeroRPC, SogVersatore, TipoAcquisizione, DataAcquisizione, NoteDirezione, Tipologia, Code)
SELECT ID_Versamento, ID_Elemento, ID_Istituto, Data, Titolo, Note, CAST(ROUND(NumeroRPC) AS INTEGER), SogVersatore, TipoAcquisizione, DataAcquisizione, NoteDirezione, Tipologia, Code FROM temp.Versamenti_Copia;
DROP TABLE temp.Versamenti_Copia;

DROP VIEW IF EXISTS AlberoGlobale;
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

DROP VIEW IF EXISTS AlberoPergamene;
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

DROP VIEW IF EXISTS AlberoDatiInventariali;
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

DROP VIEW IF EXISTS v_istituti;
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

DROP VIEW IF EXISTS V_ComplessiDocSoggetti;
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

DROP VIEW IF EXISTS V_DatiInventarialiSoggetti;
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

DROP TRIGGER IF EXISTS Provincie_Codice;

DROP TRIGGER IF EXISTS Elementi_Inserimento;
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

DROP TRIGGER IF EXISTS Elementi_FigliPresenti;
CREATE TRIGGER Elementi_FigliPresenti BEFORE DELETE ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi')
BEGIN
    SELECT RAISE(ABORT, 'Eliminazione rifiutata: l''elemento ha ancora elementi figli.') WHERE EXISTS (SELECT 1 FROM Elementi WHERE ID_ElementoPadre = OLD.ID_Elemento);
END;

DROP TRIGGER IF EXISTS Elementi_Eliminazione;
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

DROP TRIGGER IF EXISTS Elementi_Padre;
CREATE TRIGGER Elementi_Padre AFTER UPDATE OF ID_ElementoPadre ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi') AND (OLD.ID_ElementoPadre IS DISTINCT FROM NEW.ID_ElementoPadre)
BEGIN
    UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre;
    UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre;
END;

DROP TRIGGER IF EXISTS Elementi_Denominazione;
CREATE TRIGGER Elementi_Denominazione AFTER UPDATE OF Denominazione ON Elementi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Elementi') AND (NEW.Tipologia = '04' AND OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Versamenti SET Titolo = NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Istituti_Eliminazione;
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

DROP TRIGGER IF EXISTS Istituti_Nome;
CREATE TRIGGER Istituti_Nome AFTER UPDATE OF Denominazione ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE Istituti SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Eliminazione;
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

DROP TRIGGER IF EXISTS ComplessiDoc_Inserimento;
CREATE TRIGGER ComplessiDoc_Inserimento AFTER INSERT ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc')
BEGIN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Spostamento;
CREATE TRIGGER ComplessiDoc_Spostamento AFTER UPDATE OF ID_Istituto ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto)
BEGIN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Nome;
CREATE TRIGGER ComplessiDoc_Nome AFTER UPDATE OF Denominazione ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Inventari_Eliminazione;
CREATE TRIGGER Inventari_Eliminazione AFTER DELETE ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari')
BEGIN
    DELETE FROM InventariDenominazioni WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Inventari_Inserimento;
CREATE TRIGGER Inventari_Inserimento AFTER INSERT ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari')
BEGIN
    UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

DROP TRIGGER IF EXISTS Inventari_Spostamento;
CREATE TRIGGER Inventari_Spostamento AFTER UPDATE OF ID_Istituto ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto)
BEGIN
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
END;

DROP TRIGGER IF EXISTS Inventari_Nome;
CREATE TRIGGER Inventari_Nome AFTER UPDATE OF Denominazione ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
    UPDATE Inventari SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Versamenti_Eliminazione;
CREATE TRIGGER Versamenti_Eliminazione AFTER DELETE ON Versamenti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Versamenti')
BEGIN
    DELETE FROM RigheVersamento WHERE ID_Versamento = OLD.ID_Versamento;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Pergamene_Eliminazione;
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

DROP TRIGGER IF EXISTS Pergamene_Inserimento;
CREATE TRIGGER Pergamene_Inserimento AFTER INSERT ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene')
BEGIN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS Pergamene_Spostamento;
CREATE TRIGGER Pergamene_Spostamento AFTER UPDATE OF ID_Inventario ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS Pergamene_Nome;
CREATE TRIGGER Pergamene_Nome AFTER UPDATE OF Segnatura ON Pergamene FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Pergamene') AND (OLD.Segnatura IS DISTINCT FROM NEW.Segnatura)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Segnatura, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Sigilli_Eliminazione;
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

DROP TRIGGER IF EXISTS Sigilli_Inserimento;
CREATE TRIGGER Sigilli_Inserimento AFTER INSERT ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli')
BEGIN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS Sigilli_Spostamento;
CREATE TRIGGER Sigilli_Spostamento AFTER UPDATE OF ID_Inventario ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS Sigilli_Nome;
CREATE TRIGGER Sigilli_Nome AFTER UPDATE OF Identificativo ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli') AND (OLD.Identificativo IS DISTINCT FROM NEW.Identificativo)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Identificativo, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS DatiInventariali_Eliminazione;
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

DROP TRIGGER IF EXISTS DatiInventariali_Inserimento;
CREATE TRIGGER DatiInventariali_Inserimento AFTER INSERT ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali')
BEGIN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS DatiInventariali_Spostamento;
CREATE TRIGGER DatiInventariali_Spostamento AFTER UPDATE OF ID_Inventario ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali') AND (OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario)
BEGIN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
END;

DROP TRIGGER IF EXISTS DatiInventariali_Nome;
CREATE TRIGGER DatiInventariali_Nome AFTER UPDATE OF Titolo ON DatiInventariali FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventariali') AND (OLD.Titolo IS DISTINCT FROM NEW.Titolo)
BEGIN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Titolo, '') WHERE ID_Elemento = NEW.ID_Elemento;
END;

DROP TRIGGER IF EXISTS Istituti_DenomCompleta;
CREATE TRIGGER Istituti_DenomCompleta AFTER UPDATE OF DenomCompleta ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

DROP TRIGGER IF EXISTS ComplessiDoc_DenomCompleta;
CREATE TRIGGER ComplessiDoc_DenomCompleta AFTER UPDATE OF DenomCompleta ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

DROP TRIGGER IF EXISTS Inventari_DenomCompleta;
CREATE TRIGGER Inventari_DenomCompleta AFTER UPDATE OF DenomCompleta ON Inventari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Inventari') AND (OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta)
BEGIN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
END;

DROP TRIGGER IF EXISTS Istituti_Codici;
CREATE TRIGGER Istituti_Codici AFTER UPDATE OF ISAD_Codice, ISAD_Sigla ON Istituti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Istituti') AND (OLD.ISAD_Codice IS DISTINCT FROM NEW.ISAD_Codice OR OLD.ISAD_Sigla IS DISTINCT FROM NEW.ISAD_Sigla)
BEGIN
    UPDATE ComplessiDoc SET ISAD_Codice = NEW.ISAD_Codice, ISAD_Sigla = NEW.ISAD_Sigla WHERE ID_Istituto = NEW.ID_Istituto;
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Valore;
CREATE TRIGGER ComplessiDoc_Valore AFTER UPDATE OF Quantita, KConservazione, KPeriodo, KSupporto, KRilevanza, KRarita ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (OLD.Quantita IS DISTINCT FROM NEW.Quantita OR OLD.KConservazione IS DISTINCT FROM NEW.KConservazione OR OLD.KPeriodo IS DISTINCT FROM NEW.KPeriodo OR OLD.KSupporto IS DISTINCT FROM NEW.KSupporto OR OLD.KRilevanza IS DISTINCT FROM NEW.KRilevanza OR OLD.KRarita IS DISTINCT FROM NEW.KRarita)
BEGIN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc;
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Riporto;
CREATE TRIGGER ComplessiDoc_Riporto AFTER UPDATE OF Quantita, QuantitaFigli, MetriLineari, MetriLineariFigli, Valore, ValoreFigli, DataInizio, DataFine, DataInizioFigli, DataFineFigli ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (COALESCE(NULLIF(OLD.Quantita, 0), OLD.QuantitaFigli, 0) <> COALESCE(NULLIF(NEW.Quantita, 0), NEW.QuantitaFigli, 0) OR COALESCE(NULLIF(OLD.MetriLineari, 0), OLD.MetriLineariFigli, 0) <> COALESCE(NULLIF(NEW.MetriLineari, 0), NEW.MetriLineariFigli, 0) OR COALESCE(NULLIF(OLD.Valore, 0), OLD.ValoreFigli, 0) <> COALESCE(NULLIF(NEW.Valore, 0), NEW.ValoreFigli, 0) OR OLD.DataInizio IS DISTINCT FROM NEW.DataInizio OR OLD.DataFine IS DISTINCT FROM NEW.DataFine OR OLD.DataInizioFigli IS DISTINCT FROM NEW.DataInizioFigli OR OLD.DataFineFigli IS DISTINCT FROM NEW.DataFineFigli)
BEGIN
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
END;

DROP TRIGGER IF EXISTS ComplessiDoc_Riporto_Nuovo;
CREATE TRIGGER ComplessiDoc_Riporto_Nuovo AFTER INSERT ON ComplessiDoc FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDoc') AND (COALESCE(NEW.Quantita, 0) <> 0 OR COALESCE(NEW.QuantitaFigli, 0) <> 0 OR COALESCE(NEW.MetriLineari, 0) <> 0 OR COALESCE(NEW.MetriLineariFigli, 0) <> 0 OR COALESCE(NEW.Valore, 0) <> 0 OR COALESCE(NEW.ValoreFigli, 0) <> 0 OR COALESCE(NEW.DataInizio, 0) <> 0 OR COALESCE(NEW.DataFine, 0) <> 0 OR COALESCE(NEW.DataInizioFigli, 0) <> 0 OR COALESCE(NEW.DataFineFigli, 0) <> 0 OR COALESCE(NEW.KConservazione, 0) <> 0 OR COALESCE(NEW.KPeriodo, 0) <> 0 OR COALESCE(NEW.KSupporto, 0) <> 0 OR COALESCE(NEW.KRilevanza, 0) <> 0 OR COALESCE(NEW.KRarita, 0) <> 0)
BEGIN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND Valore IS DISTINCT FROM COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0);
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), COALESCE(MIN(MIN(F.DataInizio), MIN(F.DataInizioFigli)), MIN(F.DataInizio), MIN(F.DataInizioFigli)), COALESCE(MAX(MAX(F.DataFine), MAX(F.DataFineFigli)), MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
END;

DROP TRIGGER IF EXISTS Links_Inserimento;
CREATE TRIGGER Links_Inserimento AFTER INSERT ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links')
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari + 1 WHERE ID_Elemento = NEW.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Elemento = NEW.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento) = '02';
END;

DROP TRIGGER IF EXISTS Links_Eliminazione;
CREATE TRIGGER Links_Eliminazione AFTER DELETE ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links')
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari - 1 WHERE ID_Elemento = OLD.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Elemento = OLD.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento) = '02';
END;

DROP TRIGGER IF EXISTS Soggetti_Inserimento;
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

DROP TRIGGER IF EXISTS Soggetti_Eliminazione;
CREATE TRIGGER Soggetti_Eliminazione AFTER DELETE ON Soggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Soggetti')
BEGIN
    DELETE FROM Persone WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Famiglie WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Enti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM ComplessiDocSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM DatiInventarialiSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Persone_Nome;
CREATE TRIGGER Persone_Nome AFTER UPDATE OF Nome ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone') AND (OLD.Nome IS DISTINCT FROM NEW.Nome)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Persone_Codici;
CREATE TRIGGER Persone_Codici AFTER UPDATE OF Nome ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Persone SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Persona = NEW.ID_Persona;
END;

DROP TRIGGER IF EXISTS Persone_Eliminazione;
CREATE TRIGGER Persone_Eliminazione AFTER DELETE ON Persone FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Persone')
BEGIN
    DELETE FROM PersoneDenominazioni WHERE ID_Persona = OLD.ID_Persona;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Famiglie_Nome;
CREATE TRIGGER Famiglie_Nome AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie') AND (OLD.Nome IS DISTINCT FROM NEW.Nome)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Famiglie_Codici;
CREATE TRIGGER Famiglie_Codici AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Famiglie SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Famiglia = NEW.ID_Famiglia;
END;

DROP TRIGGER IF EXISTS Famiglie_Eliminazione;
CREATE TRIGGER Famiglie_Eliminazione AFTER DELETE ON Famiglie FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Famiglie')
BEGIN
    DELETE FROM FamiglieDenominazioni WHERE ID_Famiglia = OLD.ID_Famiglia;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Enti_Nome;
CREATE TRIGGER Enti_Nome AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti') AND (OLD.Denominazione IS DISTINCT FROM NEW.Denominazione)
BEGIN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Enti_Codici;
CREATE TRIGGER Enti_Codici AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti') AND (NEW.ISAD_Codice IS NULL)
BEGIN
    UPDATE Enti SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Ente = NEW.ID_Ente;
END;

DROP TRIGGER IF EXISTS Enti_Eliminazione;
CREATE TRIGGER Enti_Eliminazione AFTER DELETE ON Enti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Enti')
BEGIN
    DELETE FROM EntiDenominazioni WHERE ID_Ente = OLD.ID_Ente;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS Antroponimi_Eliminazione;
CREATE TRIGGER Antroponimi_Eliminazione AFTER DELETE ON Antroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Antroponimi')
BEGIN
    DELETE FROM PGAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
    DELETE FROM DIAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
END;

DROP TRIGGER IF EXISTS Toponimi_Eliminazione;
CREATE TRIGGER Toponimi_Eliminazione AFTER DELETE ON Toponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Toponimi')
BEGIN
    DELETE FROM PGToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
    DELETE FROM DIToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
END;

DROP TRIGGER IF EXISTS Titolari_Eliminazione;
CREATE TRIGGER Titolari_Eliminazione AFTER DELETE ON Titolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Titolari')
BEGIN
    DELETE FROM SGTitolari WHERE ID_Titolare = OLD.ID_Titolare;
END;

DROP TRIGGER IF EXISTS Links_Codice;
CREATE TRIGGER Links_Codice AFTER INSERT ON Links FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Links') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Links SET Code = (SELECT Code FROM Config) WHERE ID_Elemento = NEW.ID_Elemento AND ID_ElementoLink = NEW.ID_ElementoLink;
END;

DROP TRIGGER IF EXISTS RigheVersamento_Codice;
CREATE TRIGGER RigheVersamento_Codice AFTER INSERT ON RigheVersamento FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'RigheVersamento') AND (NEW.Code IS NULL)
BEGIN
    UPDATE RigheVersamento SET Code = (SELECT Code FROM Config) WHERE ID_RigaVersamento = NEW.ID_RigaVersamento;
END;

DROP TRIGGER IF EXISTS PGNotazioni_Codice;
CREATE TRIGGER PGNotazioni_Codice AFTER INSERT ON PGNotazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGNotazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGNotazioni SET Code = (SELECT Code FROM Config) WHERE ID_PgNotazione = NEW.ID_PgNotazione;
END;

DROP TRIGGER IF EXISTS PGAltreSegnature_Codice;
CREATE TRIGGER PGAltreSegnature_Codice AFTER INSERT ON PGAltreSegnature FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGAltreSegnature') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGAltreSegnature SET Code = (SELECT Code FROM Config) WHERE ID_PGAltraSegnatura = NEW.ID_PGAltraSegnatura;
END;

DROP TRIGGER IF EXISTS PGSigilli_Codice;
CREATE TRIGGER PGSigilli_Codice AFTER INSERT ON PGSigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGSigilli') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGSigilli SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Sigillo = NEW.ID_Sigillo;
END;

DROP TRIGGER IF EXISTS DICoseNotevoli_Codice;
CREATE TRIGGER DICoseNotevoli_Codice AFTER INSERT ON DICoseNotevoli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DICoseNotevoli') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DICoseNotevoli SET Code = (SELECT Code FROM Config) WHERE ID_DICosaNotevole = NEW.ID_DICosaNotevole;
END;

DROP TRIGGER IF EXISTS Soggetti_Codice;
CREATE TRIGGER Soggetti_Codice AFTER INSERT ON Soggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Soggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Soggetti SET Code = (SELECT Code FROM Config) WHERE ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS ComplessiDocDenominazioni_Codice;
CREATE TRIGGER ComplessiDocDenominazioni_Codice AFTER INSERT ON ComplessiDocDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDocDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE ComplessiDocDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

DROP TRIGGER IF EXISTS InventariDenominazioni_Codice;
CREATE TRIGGER InventariDenominazioni_Codice AFTER INSERT ON InventariDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'InventariDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE InventariDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

DROP TRIGGER IF EXISTS PersoneDenominazioni_Codice;
CREATE TRIGGER PersoneDenominazioni_Codice AFTER INSERT ON PersoneDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PersoneDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PersoneDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

DROP TRIGGER IF EXISTS FamiglieDenominazioni_Codice;
CREATE TRIGGER FamiglieDenominazioni_Codice AFTER INSERT ON FamiglieDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'FamiglieDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE FamiglieDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

DROP TRIGGER IF EXISTS EntiDenominazioni_Codice;
CREATE TRIGGER EntiDenominazioni_Codice AFTER INSERT ON EntiDenominazioni FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'EntiDenominazioni') AND (NEW.Code IS NULL)
BEGIN
    UPDATE EntiDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
END;

DROP TRIGGER IF EXISTS Antroponimi_Codice;
CREATE TRIGGER Antroponimi_Codice AFTER INSERT ON Antroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Antroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Antroponimi SET Code = (SELECT Code FROM Config) WHERE ID_Antroponimo = NEW.ID_Antroponimo;
END;

DROP TRIGGER IF EXISTS Toponimi_Codice;
CREATE TRIGGER Toponimi_Codice AFTER INSERT ON Toponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Toponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Toponimi SET Code = (SELECT Code FROM Config) WHERE ID_Toponimo = NEW.ID_Toponimo;
END;

DROP TRIGGER IF EXISTS Titolari_Codice;
CREATE TRIGGER Titolari_Codice AFTER INSERT ON Titolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Titolari') AND (NEW.Code IS NULL)
BEGIN
    UPDATE Titolari SET Code = (SELECT Code FROM Config) WHERE ID_Titolare = NEW.ID_Titolare;
END;

DROP TRIGGER IF EXISTS ComplessiDocSoggetti_Codice;
CREATE TRIGGER ComplessiDocSoggetti_Codice AFTER INSERT ON ComplessiDocSoggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'ComplessiDocSoggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE ComplessiDocSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS DatiInventarialiSoggetti_Codice;
CREATE TRIGGER DatiInventarialiSoggetti_Codice AFTER INSERT ON DatiInventarialiSoggetti FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DatiInventarialiSoggetti') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DatiInventarialiSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Soggetto = NEW.ID_Soggetto;
END;

DROP TRIGGER IF EXISTS PGAntroponimi_Codice;
CREATE TRIGGER PGAntroponimi_Codice AFTER INSERT ON PGAntroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGAntroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_PGAntroponimo = NEW.ID_PGAntroponimo;
END;

DROP TRIGGER IF EXISTS DIAntroponimi_Codice;
CREATE TRIGGER DIAntroponimi_Codice AFTER INSERT ON DIAntroponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DIAntroponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DIAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_DIAntroponimo = NEW.ID_DIAntroponimo;
END;

DROP TRIGGER IF EXISTS PGToponimi_Codice;
CREATE TRIGGER PGToponimi_Codice AFTER INSERT ON PGToponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'PGToponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE PGToponimi SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Toponimo = NEW.ID_Toponimo;
END;

DROP TRIGGER IF EXISTS DIToponimi_Codice;
CREATE TRIGGER DIToponimi_Codice AFTER INSERT ON DIToponimi FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'DIToponimi') AND (NEW.Code IS NULL)
BEGIN
    UPDATE DIToponimi SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Toponimo = NEW.ID_Toponimo;
END;

DROP TRIGGER IF EXISTS SGTitolari_Codice;
CREATE TRIGGER SGTitolari_Codice AFTER INSERT ON SGTitolari FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'SGTitolari') AND (NEW.Code IS NULL)
BEGIN
    UPDATE SGTitolari SET Code = (SELECT Code FROM Config) WHERE ID_SGTitolare = NEW.ID_SGTitolare;
END;

DROP TRIGGER IF EXISTS Pergamene_Righe;
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

DROP TRIGGER IF EXISTS Sigilli_Righe;
CREATE TRIGGER Sigilli_Righe AFTER INSERT ON Sigilli FOR EACH ROW
WHEN NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Sigilli')
BEGIN
    INSERT INTO SGTipo (ID_Sigillo, Code)
        SELECT NEW.ID_Sigillo, NEW.Code
        WHERE NOT EXISTS (SELECT 1 FROM SGTipo WHERE ID_Sigillo = NEW.ID_Sigillo);
END;

CREATE VIRTUAL TABLE IF NOT EXISTS IndiceWebTesto USING fts5(Denominazione, DenomCompleta, content='IndiceWeb', content_rowid='ID_Elemento', tokenize='unicode61 remove_diacritics 2');

INSERT INTO Config (Code, Descrizione, Versione, ID_Start, ID_End, Valore, DataValore)
SELECT 'SITO', NULL, 4, 1, 999999999, 0, NULL WHERE NOT EXISTS (SELECT 1 FROM Config);

UPDATE Config SET Versione = 4 WHERE Versione IS NULL OR Versione < 4;

-- Server: PostgreSQL
SET client_min_messages = warning;
DO $$
DECLARE
    proprietario name := (SELECT pg_get_userbyid(datdba) FROM pg_database
                          WHERE datname = current_database());
    estranea record;
BEGIN
    IF NOT pg_has_role(proprietario, 'MEMBER') THEN
        RAISE EXCEPTION 'Lo schema si aggiorna con i diritti di %, proprietario del database, '
            'e il ruolo % non li ha: eseguire l''aggiornamento con il login dell''amministratore.',
            proprietario, session_user;
    END IF;
    SELECT c.relname, pg_get_userbyid(c.relowner) AS padrone INTO estranea
    FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace
    WHERE n.nspname = 'public' AND c.relkind IN ('r', 'p', 'v') AND pg_get_userbyid(c.relowner) <> proprietario
    ORDER BY c.relname LIMIT 1;
    IF FOUND THEN
        RAISE EXCEPTION '% appartiene a % e non a %, proprietario del database: un superutente '
            'la renda al proprietario (nel database: REASSIGN OWNED BY % TO %) e si ripeta '
            'l''aggiornamento.', estranea.relname, estranea.padrone, proprietario,
            quote_ident(estranea.padrone), quote_ident(proprietario);
    END IF;
END
$$;

CREATE TABLE IF NOT EXISTS Config (
    Code VARCHAR(10) NOT NULL,
    Descrizione VARCHAR(255),
    Versione DOUBLE PRECISION,
    ID_Start INTEGER NOT NULL,
    ID_End INTEGER NOT NULL,
    Valore DOUBLE PRECISION NOT NULL DEFAULT 0,
    DataValore VARCHAR(20),
    PRIMARY KEY (Code)
);
ALTER TABLE Config
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10) NOT NULL,
    ADD COLUMN IF NOT EXISTS Descrizione VARCHAR(255),
    ADD COLUMN IF NOT EXISTS Versione DOUBLE PRECISION,
    ADD COLUMN IF NOT EXISTS ID_Start INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_End INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Valore DOUBLE PRECISION NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS DataValore VARCHAR(20);

CREATE TABLE IF NOT EXISTS Elementi (
    ID_Elemento INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_ElementoPadre INTEGER,
    Tipologia VARCHAR(2) NOT NULL,
    Denominazione VARCHAR(512) NOT NULL DEFAULT '',
    Pubblicato VARCHAR(1),
    DataRedazione TIMESTAMP,
    Redattore VARCHAR(64),
    Figli INTEGER NOT NULL DEFAULT 0,
    XmlLink VARCHAR(512),
    Md5Link VARCHAR(32),
    PaginaStart INTEGER DEFAULT 0,
    PaginaEnd INTEGER DEFAULT 0,
    StruProg INTEGER,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Elemento)
);
ALTER TABLE Elementi
    ADD COLUMN IF NOT EXISTS ID_ElementoPadre INTEGER,
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2) NOT NULL,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(512) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Pubblicato VARCHAR(1),
    ADD COLUMN IF NOT EXISTS DataRedazione TIMESTAMP,
    ADD COLUMN IF NOT EXISTS Redattore VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Figli INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS XmlLink VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Md5Link VARCHAR(32),
    ADD COLUMN IF NOT EXISTS PaginaStart INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS PaginaEnd INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS StruProg INTEGER,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Elementi_ID_ElementoPadre ON Elementi (ID_ElementoPadre);

CREATE TABLE IF NOT EXISTS Links (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoLink INTEGER NOT NULL,
    Specifica VARCHAR(255) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Elemento, ID_ElementoLink)
);
ALTER TABLE Links
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_ElementoLink INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Specifica VARCHAR(255) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Links_ID_ElementoLink ON Links (ID_ElementoLink);

CREATE TABLE IF NOT EXISTS Istituti (
    ID_Istituto INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    Tipologia VARCHAR(2),
    Indirizzo VARCHAR(64),
    Citta VARCHAR(64),
    Cap VARCHAR(6),
    Provincia VARCHAR(4),
    Telefono VARCHAR(64),
    Fax VARCHAR(64),
    EMail VARCHAR(64),
    UrlWeb VARCHAR(128),
    Responsabile VARCHAR(256),
    Orario VARCHAR(128),
    Note VARCHAR(1024),
    UrlLink VARCHAR(128),
    NoteDirezione VARCHAR(1024),
    NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    NumeroInventari INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT,
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Istituto)
);
ALTER TABLE Istituti
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Indirizzo VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Citta VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Cap VARCHAR(6),
    ADD COLUMN IF NOT EXISTS Provincia VARCHAR(4),
    ADD COLUMN IF NOT EXISTS Telefono VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Fax VARCHAR(64),
    ADD COLUMN IF NOT EXISTS EMail VARCHAR(64),
    ADD COLUMN IF NOT EXISTS UrlWeb VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Responsabile VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Orario VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS UrlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS NumeroInventari INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS DenomCompleta TEXT,
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Istituti_U1 ON Istituti (ID_Elemento);
CREATE INDEX IF NOT EXISTS Istituti_Tipologia ON Istituti (Tipologia);

CREATE TABLE IF NOT EXISTS CodiciIstituto (
    ID_CodiceIstituto INTEGER NOT NULL,
    Denominazione VARCHAR(256),
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    PRIMARY KEY (ID_CodiceIstituto)
);
ALTER TABLE CodiciIstituto
    ADD COLUMN IF NOT EXISTS ID_CodiceIstituto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16);
CREATE INDEX IF NOT EXISTS CodiciIstituto_ISAD_Codice_ISAD_Sigla ON CodiciIstituto (ISAD_Codice, ISAD_Sigla);
CREATE INDEX IF NOT EXISTS CodiciIstituto_Denominazione ON CodiciIstituto (Denominazione);

CREATE TABLE IF NOT EXISTS Provincie (
    Provincia VARCHAR(4) NOT NULL,
    NomeProvincia VARCHAR(64),
    PRIMARY KEY (Provincia)
);
ALTER TABLE Provincie
    ADD COLUMN IF NOT EXISTS Provincia VARCHAR(4) NOT NULL,
    ADD COLUMN IF NOT EXISTS NomeProvincia VARCHAR(64);
CREATE INDEX IF NOT EXISTS Provincie_NomeProvincia ON Provincie (NomeProvincia);

CREATE TABLE IF NOT EXISTS ComplessiDoc (
    ID_ComplessoDoc INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    NoteStoriche VARCHAR(1024),
    Note VARCHAR(1024),
    Classificazione VARCHAR(64),
    KConservazione DOUBLE PRECISION DEFAULT 0,
    KPeriodo DOUBLE PRECISION DEFAULT 0,
    KSupporto DOUBLE PRECISION DEFAULT 0,
    KRilevanza DOUBLE PRECISION DEFAULT 0,
    KRarita DOUBLE PRECISION DEFAULT 0,
    Quantita DOUBLE PRECISION DEFAULT 0,
    QuantitaFigli DOUBLE PRECISION DEFAULT 0,
    Valore DOUBLE PRECISION DEFAULT 0,
    ValoreFigli DOUBLE PRECISION DEFAULT 0,
    MetriLineari DOUBLE PRECISION DEFAULT 0,
    MetriLineariFigli DOUBLE PRECISION DEFAULT 0,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64),
    DescrizioneEstensioni VARCHAR(64),
    DataInizioFigli INTEGER,
    DataFineFigli INTEGER,
    NoteDirezione VARCHAR(1024),
    UrlLink VARCHAR(128),
    Ordinamento INTEGER,
    Topografico VARCHAR(256),
    ID_IstitutoMag INTEGER,
    ID_IstitutoSede INTEGER,
    Tipologia VARCHAR(2),
    ISAD_Nazione VARCHAR(4),
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    NumeroInventari INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT,
    Code VARCHAR(10),
    PRIMARY KEY (ID_ComplessoDoc)
);
ALTER TABLE ComplessiDoc
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Istituto INTEGER,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS NoteStoriche VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Classificazione VARCHAR(64),
    ADD COLUMN IF NOT EXISTS KConservazione DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS KPeriodo DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS KSupporto DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS KRilevanza DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS KRarita DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Quantita DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS QuantitaFigli DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Valore DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS ValoreFigli DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS MetriLineari DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS MetriLineariFigli DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS DescrizioneEstensioni VARCHAR(64),
    ADD COLUMN IF NOT EXISTS DataInizioFigli INTEGER,
    ADD COLUMN IF NOT EXISTS DataFineFigli INTEGER,
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS UrlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Ordinamento INTEGER,
    ADD COLUMN IF NOT EXISTS Topografico VARCHAR(256),
    ADD COLUMN IF NOT EXISTS ID_IstitutoMag INTEGER,
    ADD COLUMN IF NOT EXISTS ID_IstitutoSede INTEGER,
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS ISAD_Nazione VARCHAR(4),
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16),
    ADD COLUMN IF NOT EXISTS NumeroInventari INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS DenomCompleta TEXT,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS ComplessiDoc_U1 ON ComplessiDoc (ID_Elemento);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_Istituto ON ComplessiDoc (ID_Istituto);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_IstitutoSede ON ComplessiDoc (ID_IstitutoSede);
CREATE INDEX IF NOT EXISTS ComplessiDoc_ID_IstitutoMag ON ComplessiDoc (ID_IstitutoMag);

CREATE TABLE IF NOT EXISTS Inventari (
    ID_Inventario INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    Tipologia VARCHAR(2),
    ID_IstitutoSede INTEGER,
    ID_IstitutoMag INTEGER,
    AnnoInizio INTEGER,
    AnnoFine INTEGER,
    DescrizioneEstremi VARCHAR(256),
    Autore VARCHAR(256),
    TipoInventario VARCHAR(1),
    Note VARCHAR(1024),
    XmlLink VARCHAR(128),
    UrlLink VARCHAR(128),
    NoteDirezione VARCHAR(1024),
    SubTipologia VARCHAR(2),
    Edizione VARCHAR(256),
    NumeroPergamene INTEGER NOT NULL DEFAULT 0,
    NumeroDatiInventariali INTEGER NOT NULL DEFAULT 0,
    NumeroSigilli INTEGER NOT NULL DEFAULT 0,
    TipoInv VARCHAR(2),
    NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    DenomCompleta TEXT,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Inventario)
);
ALTER TABLE Inventari
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Istituto INTEGER,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS ID_IstitutoSede INTEGER,
    ADD COLUMN IF NOT EXISTS ID_IstitutoMag INTEGER,
    ADD COLUMN IF NOT EXISTS AnnoInizio INTEGER,
    ADD COLUMN IF NOT EXISTS AnnoFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Autore VARCHAR(256),
    ADD COLUMN IF NOT EXISTS TipoInventario VARCHAR(1),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS XmlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS UrlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS SubTipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Edizione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS NumeroPergamene INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS NumeroDatiInventariali INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS NumeroSigilli INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS TipoInv VARCHAR(2),
    ADD COLUMN IF NOT EXISTS NumeroComplessi INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS DenomCompleta TEXT,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Inventari_U1 ON Inventari (ID_Elemento);
CREATE INDEX IF NOT EXISTS Inventari_ID_Istituto ON Inventari (ID_Istituto);
CREATE INDEX IF NOT EXISTS Inventari_ID_IstitutoSede ON Inventari (ID_IstitutoSede);
CREATE INDEX IF NOT EXISTS Inventari_ID_IstitutoMag ON Inventari (ID_IstitutoMag);
CREATE INDEX IF NOT EXISTS Inventari_Denominazione ON Inventari (Denominazione);

CREATE TABLE IF NOT EXISTS DatiInventariali (
    ID_DatoInventariale INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Tipologia VARCHAR(2) DEFAULT '00',
    Numero VARCHAR(64),
    Descrizione VARCHAR(64),
    DescrizioneTestuale VARCHAR(1024),
    DescrizioneEstremi VARCHAR(128),
    DataInizio INTEGER,
    DataFine INTEGER,
    Classificazione VARCHAR(64),
    Note VARCHAR(1024),
    CoseNotevoli VARCHAR(512),
    Ordinamento VARCHAR(3),
    Titolo VARCHAR(128) NOT NULL DEFAULT '',
    Acquisizione VARCHAR(256),
    CriteriOrdinamento VARCHAR(256),
    Accesso VARCHAR(256),
    Riproduzione VARCHAR(128),
    Lingua VARCHAR(128),
    Conservazione VARCHAR(256),
    NoteGestionali VARCHAR(1024),
    Id_ElemComplDoc INTEGER DEFAULT 0,
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10),
    PRIMARY KEY (ID_DatoInventariale)
);
ALTER TABLE DatiInventariali
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Inventario INTEGER,
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2) DEFAULT '00',
    ADD COLUMN IF NOT EXISTS Numero VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Descrizione VARCHAR(64),
    ADD COLUMN IF NOT EXISTS DescrizioneTestuale VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS Classificazione VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS CoseNotevoli VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Ordinamento VARCHAR(3),
    ADD COLUMN IF NOT EXISTS Titolo VARCHAR(128) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Acquisizione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS CriteriOrdinamento VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Accesso VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Riproduzione VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Lingua VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Conservazione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS NoteGestionali VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Id_ElemComplDoc INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS FlgUnitaCond INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS DatiInventariali_U1 ON DatiInventariali (ID_Elemento);
CREATE INDEX IF NOT EXISTS DatiInventariali_ID_Inventario ON DatiInventariali (ID_Inventario);
CREATE INDEX IF NOT EXISTS DatiInventariali_Id_ElemComplDoc ON DatiInventariali (Id_ElemComplDoc);

CREATE TABLE IF NOT EXISTS Versamenti (
    ID_Versamento INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Istituto INTEGER,
    Data TIMESTAMP,
    Titolo VARCHAR(512),
    Note VARCHAR(1024),
    NumeroRPC BIGINT,
    SogVersatore VARCHAR(256),
    TipoAcquisizione VARCHAR(2),
    DataAcquisizione TIMESTAMP,
    NoteDirezione VARCHAR(1024),
    Tipologia VARCHAR(2),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Versamento)
);
ALTER TABLE Versamenti
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Istituto INTEGER,
    ADD COLUMN IF NOT EXISTS Data TIMESTAMP,
    ADD COLUMN IF NOT EXISTS Titolo VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS NumeroRPC BIGINT,
    ADD COLUMN IF NOT EXISTS SogVersatore VARCHAR(256),
    ADD COLUMN IF NOT EXISTS TipoAcquisizione VARCHAR(2),
    ADD COLUMN IF NOT EXISTS DataAcquisizione TIMESTAMP,
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Versamenti_U1 ON Versamenti (ID_Elemento);
CREATE INDEX IF NOT EXISTS Versamenti_ID_Istituto ON Versamenti (ID_Istituto);

CREATE TABLE IF NOT EXISTS RigheVersamento (
    ID_RigaVersamento INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Versamento INTEGER NOT NULL,
    ID_ComplessoDoc INTEGER DEFAULT 0,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    Quantita DOUBLE PRECISION DEFAULT 0,
    MetriLineari DOUBLE PRECISION DEFAULT 0,
    Classificazione VARCHAR(64),
    DescrizioneEstremi VARCHAR(64),
    DataInizio INTEGER,
    DataFine INTEGER,
    Note VARCHAR(1024),
    Code VARCHAR(10),
    PRIMARY KEY (ID_RigaVersamento)
);
ALTER TABLE RigheVersamento
    ADD COLUMN IF NOT EXISTS ID_Versamento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_ComplessoDoc INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Quantita DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS MetriLineari DOUBLE PRECISION DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Classificazione VARCHAR(64),
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS RigheVersamento_ID_Versamento ON RigheVersamento (ID_Versamento);
CREATE INDEX IF NOT EXISTS RigheVersamento_ID_ComplessoDoc ON RigheVersamento (ID_ComplessoDoc);

CREATE TABLE IF NOT EXISTS Pergamene (
    ID_Pergamena INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Segnatura VARCHAR(64) NOT NULL DEFAULT '',
    DataCronicaInizio INTEGER,
    DataCronicaFine INTEGER,
    DataTopica VARCHAR(64),
    Datazio VARCHAR(256),
    Regesto VARCHAR(1024),
    Miniatura VARCHAR(512),
    SigilliAttuali INTEGER DEFAULT 0,
    SigilliOriginari INTEGER DEFAULT 0,
    Annuncio VARCHAR(1024),
    Accesso VARCHAR(256),
    Riproduzione VARCHAR(128),
    Lingua VARCHAR(128),
    Bibliografia VARCHAR(1024),
    NoteDirezione VARCHAR(1024),
    NoteRiproduzione VARCHAR(256),
    Note VARCHAR(1024),
    UrlLink VARCHAR(128),
    DescrizioneEstremi VARCHAR(128),
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena)
);
ALTER TABLE Pergamene
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Inventario INTEGER,
    ADD COLUMN IF NOT EXISTS Segnatura VARCHAR(64) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS DataCronicaInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataCronicaFine INTEGER,
    ADD COLUMN IF NOT EXISTS DataTopica VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Datazio VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Regesto VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Miniatura VARCHAR(512),
    ADD COLUMN IF NOT EXISTS SigilliAttuali INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS SigilliOriginari INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Annuncio VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Accesso VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Riproduzione VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Lingua VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Bibliografia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS NoteRiproduzione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS UrlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(128),
    ADD COLUMN IF NOT EXISTS FlgUnitaCond INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Pergamene_U1 ON Pergamene (ID_Elemento);
CREATE INDEX IF NOT EXISTS Pergamene_ID_Inventario ON Pergamene (ID_Inventario);

CREATE TABLE IF NOT EXISTS PGSupporti (
    ID_Pergamena INTEGER NOT NULL,
    Supporto VARCHAR(32),
    StatoConservazione VARCHAR(256),
    Dimensioni VARCHAR(32),
    Note VARCHAR(1024),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena)
);
ALTER TABLE PGSupporti
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Supporto VARCHAR(32),
    ADD COLUMN IF NOT EXISTS StatoConservazione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Dimensioni VARCHAR(32),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);

CREATE TABLE IF NOT EXISTS PGTraditio (
    ID_Pergamena INTEGER NOT NULL,
    Traditio VARCHAR(2),
    DataCopia INTEGER,
    Rogatario VARCHAR(512),
    DataCopiaTesto VARCHAR(64),
    ID_Elemento INTEGER,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena)
);
ALTER TABLE PGTraditio
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Traditio VARCHAR(2),
    ADD COLUMN IF NOT EXISTS DataCopia INTEGER,
    ADD COLUMN IF NOT EXISTS Rogatario VARCHAR(512),
    ADD COLUMN IF NOT EXISTS DataCopiaTesto VARCHAR(64),
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PGTraditio_ID_Elemento ON PGTraditio (ID_Elemento);

CREATE TABLE IF NOT EXISTS PGEleGrafici (
    ID_Pergamena INTEGER NOT NULL,
    NoteGrafiche VARCHAR(512),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena)
);
ALTER TABLE PGEleGrafici
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS NoteGrafiche VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);

CREATE TABLE IF NOT EXISTS PGNoteStoriche (
    ID_Pergamena INTEGER NOT NULL,
    NoteStoriche VARCHAR(1024),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena)
);
ALTER TABLE PGNoteStoriche
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS NoteStoriche VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);

CREATE TABLE IF NOT EXISTS PGNotazioni (
    ID_PgNotazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    Trascrizione TEXT,
    Posizione VARCHAR(64) NOT NULL DEFAULT '',
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64),
    Note VARCHAR(512),
    Code VARCHAR(10),
    PRIMARY KEY (ID_PgNotazione)
);
ALTER TABLE PGNotazioni
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Trascrizione TEXT,
    ADD COLUMN IF NOT EXISTS Posizione VARCHAR(64) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PGNotazioni_ID_Pergamena ON PGNotazioni (ID_Pergamena);

CREATE TABLE IF NOT EXISTS PGAltreSegnature (
    ID_PGAltraSegnatura INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    Segnatura VARCHAR(128) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_PGAltraSegnatura)
);
ALTER TABLE PGAltreSegnature
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Segnatura VARCHAR(128) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PGAltreSegnature_ID_Pergamena ON PGAltreSegnature (ID_Pergamena);

CREATE TABLE IF NOT EXISTS PGSigilli (
    ID_Pergamena INTEGER NOT NULL,
    ID_Sigillo INTEGER NOT NULL DEFAULT 0,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena, ID_Sigillo)
);
ALTER TABLE PGSigilli
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Sigillo INTEGER NOT NULL DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PGSigilli_ID_Sigillo ON PGSigilli (ID_Sigillo);

CREATE TABLE IF NOT EXISTS Sigilli (
    ID_Sigillo INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Elemento INTEGER NOT NULL,
    ID_Inventario INTEGER,
    Identificativo VARCHAR(256),
    Tipologia VARCHAR(2),
    DataInizio INTEGER,
    DataFine INTEGER,
    Dimensioni VARCHAR(32),
    MateriaNuovo VARCHAR(2),
    Colore VARCHAR(64),
    Apposizione VARCHAR(128),
    Rapporto VARCHAR(2),
    Ruolo VARCHAR(128),
    Posizione VARCHAR(64),
    NoteDirezione VARCHAR(1024),
    Attacchi VARCHAR(128),
    Protezione VARCHAR(128),
    Qualita VARCHAR(128),
    Conservazione VARCHAR(256),
    Segni VARCHAR(256),
    Autenticita VARCHAR(256),
    Matrice VARCHAR(256),
    AltreImpronteSigillo VARCHAR(512),
    AltreImpronteTitolare VARCHAR(512),
    Edizione VARCHAR(256),
    Bibliografia VARCHAR(1024),
    Accesso VARCHAR(256),
    Riproduzione VARCHAR(128),
    Note VARCHAR(1024),
    RifDocNoInv VARCHAR(512),
    DescrizioneEstremi VARCHAR(256),
    UrlLink VARCHAR(128),
    FlgUnitaCond INTEGER DEFAULT 0,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Sigillo)
);
ALTER TABLE Sigilli
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Inventario INTEGER,
    ADD COLUMN IF NOT EXISTS Identificativo VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2),
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS Dimensioni VARCHAR(32),
    ADD COLUMN IF NOT EXISTS MateriaNuovo VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Colore VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Apposizione VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Rapporto VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Ruolo VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Posizione VARCHAR(64),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Attacchi VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Protezione VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Qualita VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Conservazione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Segni VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Autenticita VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Matrice VARCHAR(256),
    ADD COLUMN IF NOT EXISTS AltreImpronteSigillo VARCHAR(512),
    ADD COLUMN IF NOT EXISTS AltreImpronteTitolare VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Edizione VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Bibliografia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Accesso VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Riproduzione VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS RifDocNoInv VARCHAR(512),
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(256),
    ADD COLUMN IF NOT EXISTS UrlLink VARCHAR(128),
    ADD COLUMN IF NOT EXISTS FlgUnitaCond INTEGER DEFAULT 0,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Sigilli_U1 ON Sigilli (ID_Elemento);
CREATE INDEX IF NOT EXISTS Sigilli_ID_Inventario ON Sigilli (ID_Inventario);

CREATE TABLE IF NOT EXISTS SGTipo (
    ID_Sigillo INTEGER NOT NULL,
    FormaR VARCHAR(128),
    DimensioniR VARCHAR(32),
    TrascrizioneR VARCHAR(512),
    LinguaR VARCHAR(128),
    DescrizioneR VARCHAR(1024),
    TrascrizioneV VARCHAR(512),
    LinguaV VARCHAR(128),
    DescrizioneV VARCHAR(1024),
    TipologiaR VARCHAR(128),
    Incisore VARCHAR(1024),
    FormaV VARCHAR(128),
    DimensioniV VARCHAR(32),
    TipologiaV VARCHAR(128),
    TipologIcoR VARCHAR(2),
    TipologIcoV VARCHAR(2),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Sigillo)
);
ALTER TABLE SGTipo
    ADD COLUMN IF NOT EXISTS ID_Sigillo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS FormaR VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DimensioniR VARCHAR(32),
    ADD COLUMN IF NOT EXISTS TrascrizioneR VARCHAR(512),
    ADD COLUMN IF NOT EXISTS LinguaR VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DescrizioneR VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS TrascrizioneV VARCHAR(512),
    ADD COLUMN IF NOT EXISTS LinguaV VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DescrizioneV VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS TipologiaR VARCHAR(128),
    ADD COLUMN IF NOT EXISTS Incisore VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS FormaV VARCHAR(128),
    ADD COLUMN IF NOT EXISTS DimensioniV VARCHAR(32),
    ADD COLUMN IF NOT EXISTS TipologiaV VARCHAR(128),
    ADD COLUMN IF NOT EXISTS TipologIcoR VARCHAR(2),
    ADD COLUMN IF NOT EXISTS TipologIcoV VARCHAR(2),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);

CREATE TABLE IF NOT EXISTS DICoseNotevoli (
    ID_DICosaNotevole INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    Descrizione TEXT DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_DICosaNotevole)
);
ALTER TABLE DICoseNotevoli
    ADD COLUMN IF NOT EXISTS ID_DatoInventariale INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Descrizione TEXT DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS DICoseNotevoli_ID_DatoInventariale ON DICoseNotevoli (ID_DatoInventariale);

CREATE TABLE IF NOT EXISTS Soggetti (
    ID_Soggetto INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    TipoSoggetto VARCHAR(1) NOT NULL,
    Pubblicato VARCHAR(1),
    DataRedazione TIMESTAMP,
    Redattore VARCHAR(64),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Soggetto)
);
ALTER TABLE Soggetti
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS TipoSoggetto VARCHAR(1) NOT NULL,
    ADD COLUMN IF NOT EXISTS Pubblicato VARCHAR(1),
    ADD COLUMN IF NOT EXISTS DataRedazione TIMESTAMP,
    ADD COLUMN IF NOT EXISTS Redattore VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Soggetti_TipoSoggetto ON Soggetti (TipoSoggetto);
CREATE INDEX IF NOT EXISTS Soggetti_Denominazione ON Soggetti (Denominazione);

CREATE TABLE IF NOT EXISTS Persone (
    ID_Persona INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Nome VARCHAR(256) NOT NULL DEFAULT '',
    Titoli VARCHAR(32),
    DataNascita INTEGER,
    DataMorte INTEGER,
    AreaGeografica VARCHAR(64),
    Storia VARCHAR(1024),
    Note VARCHAR(1024),
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64),
    LuogoNascita VARCHAR(32),
    LuogoMorte VARCHAR(32),
    NoteDirezione VARCHAR(1024),
    ISAD_Nazione VARCHAR(4),
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Persona)
);
ALTER TABLE Persone
    ADD COLUMN IF NOT EXISTS ID_Soggetto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Nome VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Titoli VARCHAR(32),
    ADD COLUMN IF NOT EXISTS DataNascita INTEGER,
    ADD COLUMN IF NOT EXISTS DataMorte INTEGER,
    ADD COLUMN IF NOT EXISTS AreaGeografica VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Storia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS LuogoNascita VARCHAR(32),
    ADD COLUMN IF NOT EXISTS LuogoMorte VARCHAR(32),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS ISAD_Nazione VARCHAR(4),
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Persone_U1 ON Persone (ID_Soggetto);

CREATE TABLE IF NOT EXISTS Famiglie (
    ID_Famiglia INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Nome VARCHAR(256) NOT NULL DEFAULT '',
    Titoli VARCHAR(32),
    Persone TEXT,
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64),
    AreaGeografica VARCHAR(64),
    Storia VARCHAR(1024),
    Note VARCHAR(1024),
    NoteDirezione VARCHAR(1024),
    ISAD_Nazione VARCHAR(4),
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Famiglia)
);
ALTER TABLE Famiglie
    ADD COLUMN IF NOT EXISTS ID_Soggetto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Nome VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Titoli VARCHAR(32),
    ADD COLUMN IF NOT EXISTS Persone TEXT,
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS AreaGeografica VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Storia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS ISAD_Nazione VARCHAR(4),
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Famiglie_U1 ON Famiglie (ID_Soggetto);

CREATE TABLE IF NOT EXISTS Enti (
    ID_Ente INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    AreaGeografica VARCHAR(64),
    NaturaGiuridica VARCHAR(256),
    Storia VARCHAR(1024),
    Note VARCHAR(1024),
    DataInizio INTEGER,
    DataFine INTEGER,
    DescrizioneEstremi VARCHAR(64),
    Sede VARCHAR(64),
    Profilo VARCHAR(2),
    NoteDirezione VARCHAR(1024),
    ISAD_Nazione VARCHAR(4),
    ISAD_Codice VARCHAR(16),
    ISAD_Sigla VARCHAR(16),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Ente)
);
ALTER TABLE Enti
    ADD COLUMN IF NOT EXISTS ID_Soggetto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(256) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS AreaGeografica VARCHAR(64),
    ADD COLUMN IF NOT EXISTS NaturaGiuridica VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Storia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER,
    ADD COLUMN IF NOT EXISTS DescrizioneEstremi VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Sede VARCHAR(64),
    ADD COLUMN IF NOT EXISTS Profilo VARCHAR(2),
    ADD COLUMN IF NOT EXISTS NoteDirezione VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS ISAD_Nazione VARCHAR(4),
    ADD COLUMN IF NOT EXISTS ISAD_Codice VARCHAR(16),
    ADD COLUMN IF NOT EXISTS ISAD_Sigla VARCHAR(16),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS Enti_U1 ON Enti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS ComplessiDocDenominazioni (
    ID_Denominazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_ComplessoDoc INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Denominazione)
);
ALTER TABLE ComplessiDocDenominazioni
    ADD COLUMN IF NOT EXISTS ID_ComplessoDoc INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS AltraDenominazione VARCHAR(256) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS ComplessiDocDenominazioni_ID_ComplessoDoc ON ComplessiDocDenominazioni (ID_ComplessoDoc);

CREATE TABLE IF NOT EXISTS InventariDenominazioni (
    ID_Denominazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Inventario INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Denominazione)
);
ALTER TABLE InventariDenominazioni
    ADD COLUMN IF NOT EXISTS ID_Inventario INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS AltraDenominazione VARCHAR(256) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS InventariDenominazioni_ID_Inventario ON InventariDenominazioni (ID_Inventario);

CREATE TABLE IF NOT EXISTS PersoneDenominazioni (
    ID_Denominazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Persona INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Denominazione)
);
ALTER TABLE PersoneDenominazioni
    ADD COLUMN IF NOT EXISTS ID_Persona INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS AltraDenominazione VARCHAR(256) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PersoneDenominazioni_ID_Persona ON PersoneDenominazioni (ID_Persona);

CREATE TABLE IF NOT EXISTS FamiglieDenominazioni (
    ID_Denominazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Famiglia INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Denominazione)
);
ALTER TABLE FamiglieDenominazioni
    ADD COLUMN IF NOT EXISTS ID_Famiglia INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS AltraDenominazione VARCHAR(256) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS FamiglieDenominazioni_ID_Famiglia ON FamiglieDenominazioni (ID_Famiglia);

CREATE TABLE IF NOT EXISTS EntiDenominazioni (
    ID_Denominazione INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Ente INTEGER NOT NULL,
    AltraDenominazione VARCHAR(256) DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Denominazione)
);
ALTER TABLE EntiDenominazioni
    ADD COLUMN IF NOT EXISTS ID_Ente INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS AltraDenominazione VARCHAR(256) DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS EntiDenominazioni_ID_Ente ON EntiDenominazioni (ID_Ente);

CREATE TABLE IF NOT EXISTS Antroponimi (
    ID_Antroponimo INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    Nome VARCHAR(128) NOT NULL DEFAULT '',
    Titoli VARCHAR(256),
    Note VARCHAR(512),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Antroponimo)
);
ALTER TABLE Antroponimi
    ADD COLUMN IF NOT EXISTS Nome VARCHAR(128) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Titoli VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(512),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Antroponimi_Nome ON Antroponimi (Nome);

CREATE TABLE IF NOT EXISTS Toponimi (
    ID_Toponimo INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    Denominazione VARCHAR(64) NOT NULL DEFAULT '',
    Code VARCHAR(10),
    PRIMARY KEY (ID_Toponimo)
);
ALTER TABLE Toponimi
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(64) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Toponimi_Denominazione ON Toponimi (Denominazione);

CREATE TABLE IF NOT EXISTS Titolari (
    ID_Titolare INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    Nome VARCHAR(128) NOT NULL DEFAULT '',
    Titoli VARCHAR(256),
    Note VARCHAR(1024),
    Bibliografia VARCHAR(1024),
    Code VARCHAR(10),
    PRIMARY KEY (ID_Titolare)
);
ALTER TABLE Titolari
    ADD COLUMN IF NOT EXISTS Nome VARCHAR(128) NOT NULL DEFAULT '',
    ADD COLUMN IF NOT EXISTS Titoli VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Note VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Bibliografia VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS Titolari_Nome ON Titolari (Nome);

CREATE TABLE IF NOT EXISTS ComplessiDocSoggetti (
    ID_ComplessoDoc INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10),
    PRIMARY KEY (ID_ComplessoDoc, ID_Soggetto)
);
ALTER TABLE ComplessiDocSoggetti
    ADD COLUMN IF NOT EXISTS ID_ComplessoDoc INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Soggetto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS ComplessiDocSoggetti_ID_Soggetto ON ComplessiDocSoggetti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS DatiInventarialiSoggetti (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Soggetto INTEGER NOT NULL,
    Code VARCHAR(10),
    PRIMARY KEY (ID_DatoInventariale, ID_Soggetto)
);
ALTER TABLE DatiInventarialiSoggetti
    ADD COLUMN IF NOT EXISTS ID_DatoInventariale INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Soggetto INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS DatiInventarialiSoggetti_ID_Soggetto ON DatiInventarialiSoggetti (ID_Soggetto);

CREATE TABLE IF NOT EXISTS PGAntroponimi (
    ID_PGAntroponimo INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Pergamena INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Ruolo VARCHAR(32),
    Code VARCHAR(10),
    PRIMARY KEY (ID_PGAntroponimo)
);
ALTER TABLE PGAntroponimi
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Antroponimo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Ruolo VARCHAR(32),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS PGAntroponimi_U1 ON PGAntroponimi (ID_Pergamena, ID_Antroponimo);
CREATE INDEX IF NOT EXISTS PGAntroponimi_ID_Antroponimo ON PGAntroponimi (ID_Antroponimo);

CREATE TABLE IF NOT EXISTS DIAntroponimi (
    ID_DIAntroponimo INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Antroponimo INTEGER NOT NULL,
    Code VARCHAR(10),
    PRIMARY KEY (ID_DIAntroponimo)
);
ALTER TABLE DIAntroponimi
    ADD COLUMN IF NOT EXISTS ID_DatoInventariale INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Antroponimo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS DIAntroponimi_U1 ON DIAntroponimi (ID_DatoInventariale, ID_Antroponimo);
CREATE INDEX IF NOT EXISTS DIAntroponimi_ID_Antroponimo ON DIAntroponimi (ID_Antroponimo);

CREATE TABLE IF NOT EXISTS PGToponimi (
    ID_Pergamena INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10),
    PRIMARY KEY (ID_Pergamena, ID_Toponimo)
);
ALTER TABLE PGToponimi
    ADD COLUMN IF NOT EXISTS ID_Pergamena INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Toponimo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS PGToponimi_ID_Toponimo ON PGToponimi (ID_Toponimo);

CREATE TABLE IF NOT EXISTS DIToponimi (
    ID_DatoInventariale INTEGER NOT NULL,
    ID_Toponimo INTEGER NOT NULL,
    Code VARCHAR(10),
    PRIMARY KEY (ID_DatoInventariale, ID_Toponimo)
);
ALTER TABLE DIToponimi
    ADD COLUMN IF NOT EXISTS ID_DatoInventariale INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Toponimo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE INDEX IF NOT EXISTS DIToponimi_ID_Toponimo ON DIToponimi (ID_Toponimo);

CREATE TABLE IF NOT EXISTS SGTitolari (
    ID_SGTitolare INTEGER GENERATED BY DEFAULT AS IDENTITY NOT NULL,
    ID_Sigillo INTEGER NOT NULL,
    ID_Titolare INTEGER NOT NULL,
    Ruolo VARCHAR(32),
    Code VARCHAR(10),
    PRIMARY KEY (ID_SGTitolare)
);
ALTER TABLE SGTitolari
    ADD COLUMN IF NOT EXISTS ID_Sigillo INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_Titolare INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS Ruolo VARCHAR(32),
    ADD COLUMN IF NOT EXISTS Code VARCHAR(10);
CREATE UNIQUE INDEX IF NOT EXISTS SGTitolari_U1 ON SGTitolari (ID_Sigillo, ID_Titolare);
CREATE INDEX IF NOT EXISTS SGTitolari_ID_Titolare ON SGTitolari (ID_Titolare);

CREATE TABLE IF NOT EXISTS MD5Location (
    MD5 VARCHAR(32) NOT NULL,
    LogicalPath VARCHAR(1024),
    XmlName VARCHAR(256),
    Status INTEGER DEFAULT 0,
    PRIMARY KEY (MD5)
);
ALTER TABLE MD5Location
    ADD COLUMN IF NOT EXISTS MD5 VARCHAR(32) NOT NULL,
    ADD COLUMN IF NOT EXISTS LogicalPath VARCHAR(1024),
    ADD COLUMN IF NOT EXISTS XmlName VARCHAR(256),
    ADD COLUMN IF NOT EXISTS Status INTEGER DEFAULT 0;

CREATE TABLE IF NOT EXISTS ImgCounter (
    PhisicalPath VARCHAR(1024) NOT NULL,
    Counter INTEGER,
    PRIMARY KEY (PhisicalPath)
);
ALTER TABLE ImgCounter
    ADD COLUMN IF NOT EXISTS PhisicalPath VARCHAR(1024) NOT NULL,
    ADD COLUMN IF NOT EXISTS Counter INTEGER;

CREATE TABLE IF NOT EXISTS IndiceWeb (
    ID_Elemento INTEGER NOT NULL,
    ID_ElementoPadre INTEGER,
    Tipologia VARCHAR(2) NOT NULL,
    Denominazione VARCHAR(512),
    DenomCompleta TEXT,
    DataInizio INTEGER,
    DataFine INTEGER,
    PRIMARY KEY (ID_Elemento)
);
ALTER TABLE IndiceWeb
    ADD COLUMN IF NOT EXISTS ID_Elemento INTEGER NOT NULL,
    ADD COLUMN IF NOT EXISTS ID_ElementoPadre INTEGER,
    ADD COLUMN IF NOT EXISTS Tipologia VARCHAR(2) NOT NULL,
    ADD COLUMN IF NOT EXISTS Denominazione VARCHAR(512),
    ADD COLUMN IF NOT EXISTS DenomCompleta TEXT,
    ADD COLUMN IF NOT EXISTS DataInizio INTEGER,
    ADD COLUMN IF NOT EXISTS DataFine INTEGER;
CREATE INDEX IF NOT EXISTS IndiceWeb_ID_ElementoPadre ON IndiceWeb (ID_ElementoPadre);
CREATE INDEX IF NOT EXISTS IndiceWeb_Tipologia ON IndiceWeb (Tipologia);

DO $$
BEGIN
    IF EXISTS (SELECT 1 FROM information_schema.columns
               WHERE table_schema = current_schema() AND table_name = 'versamenti'
                 AND column_name = 'numerorpc' AND data_type <> 'bigint') THEN
        DROP VIEW IF EXISTS AlberoGlobale;
        ALTER TABLE Versamenti ALTER COLUMN NumeroRPC TYPE BIGINT USING CAST(ROUND(NumeroRPC) AS BIGINT);
    END IF;
END
$$;

CREATE OR REPLACE VIEW AlberoGlobale AS
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

CREATE OR REPLACE VIEW AlberoPergamene AS
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

CREATE OR REPLACE VIEW AlberoDatiInventariali AS
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
    CASE WHEN BTRIM(DI.Ordinamento) ~ '^[0-9]+$' THEN CAST(BTRIM(DI.Ordinamento) AS INTEGER) END AS DATIINV_Ordinamento,
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

CREATE OR REPLACE VIEW v_istituti AS
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

CREATE OR REPLACE VIEW V_ComplessiDocSoggetti AS
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

CREATE OR REPLACE VIEW V_DatiInventarialiSoggetti AS
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

DROP TRIGGER IF EXISTS Provincie_Codice ON Provincie;
DROP FUNCTION IF EXISTS tabellion_provincie_codice();

CREATE OR REPLACE FUNCTION tabellion_elementi_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Elementi SET Code = (SELECT Code FROM Config) WHERE ID_Elemento = NEW.ID_Elemento AND Code IS NULL;
    UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre;
    IF NEW.Tipologia = '01' AND NOT EXISTS (SELECT 1 FROM Istituti WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO Istituti (ID_Istituto, ID_Elemento, Code, Denominazione, DenomCompleta)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione;
    END IF;
    IF NEW.Tipologia = '02' AND NOT EXISTS (SELECT 1 FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO ComplessiDoc (ID_ComplessoDoc, ID_Elemento, Code, Denominazione, DenomCompleta, ID_Istituto, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione, COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)), 'IT', (SELECT ISAD_Codice FROM Istituti WHERE ID_Istituto = COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre))), (SELECT ISAD_Sigla FROM Istituti WHERE ID_Istituto = COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)));
    END IF;
    IF NEW.Tipologia = '03' AND NOT EXISTS (SELECT 1 FROM Inventari WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO Inventari (ID_Inventario, ID_Elemento, Code, Denominazione, DenomCompleta, ID_Istituto)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)) || ' > ', '') || NEW.Denominazione, COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre));
    END IF;
    IF NEW.Tipologia = '04' AND NOT EXISTS (SELECT 1 FROM Versamenti WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO Versamenti (ID_Versamento, ID_Elemento, Code, ID_Istituto, Titolo)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre)), NEW.Denominazione;
    END IF;
    IF NEW.Tipologia = '05' AND NOT EXISTS (SELECT 1 FROM Pergamene WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO Pergamene (ID_Pergamena, ID_Elemento, Code, Segnatura, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre));
    END IF;
    IF NEW.Tipologia = '06' AND NOT EXISTS (SELECT 1 FROM Sigilli WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO Sigilli (ID_Sigillo, ID_Elemento, Code, Identificativo, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre));
    END IF;
    IF NEW.Tipologia = '07' AND NOT EXISTS (SELECT 1 FROM DatiInventariali WHERE ID_Elemento = NEW.ID_Elemento) THEN
        INSERT INTO DatiInventariali (ID_DatoInventariale, ID_Elemento, Code, Titolo, ID_Inventario)
        SELECT NEW.ID_Elemento, NEW.ID_Elemento, COALESCE(NEW.Code, (SELECT Code FROM Config)), NEW.Denominazione, COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), (SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre));
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Elementi_Inserimento AFTER INSERT ON Elementi FOR EACH ROW EXECUTE FUNCTION tabellion_elementi_inserimento();

CREATE OR REPLACE FUNCTION tabellion_elementi_figlipresenti() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF EXISTS (SELECT 1 FROM Elementi WHERE ID_ElementoPadre = OLD.ID_Elemento) THEN
        RAISE EXCEPTION 'Eliminazione rifiutata: l''elemento ha ancora elementi figli.';
    END IF;
    RETURN OLD;
END
$$;
CREATE OR REPLACE TRIGGER Elementi_FigliPresenti BEFORE DELETE ON Elementi FOR EACH ROW EXECUTE FUNCTION tabellion_elementi_figlipresenti();

CREATE OR REPLACE FUNCTION tabellion_elementi_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
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
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), LEAST(MIN(F.DataInizio), MIN(F.DataInizioFigli)), GREATEST(MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = OLD.ID_ElementoPadre;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Elementi_Eliminazione AFTER DELETE ON Elementi FOR EACH ROW EXECUTE FUNCTION tabellion_elementi_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_elementi_padre() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_ElementoPadre IS DISTINCT FROM NEW.ID_ElementoPadre THEN
    UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre;
        UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Elementi_Padre AFTER UPDATE OF ID_ElementoPadre ON Elementi FOR EACH ROW EXECUTE FUNCTION tabellion_elementi_padre();

CREATE OR REPLACE FUNCTION tabellion_elementi_denominazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Tipologia = '04' AND OLD.Denominazione IS DISTINCT FROM NEW.Denominazione THEN
    UPDATE Versamenti SET Titolo = NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Elementi_Denominazione AFTER UPDATE OF Denominazione ON Elementi FOR EACH ROW EXECUTE FUNCTION tabellion_elementi_denominazione();

CREATE OR REPLACE FUNCTION tabellion_istituti_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE ComplessiDoc SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto;
    UPDATE ComplessiDoc SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto;
    UPDATE Inventari SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto;
    UPDATE Inventari SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Istituti_Eliminazione AFTER DELETE ON Istituti FOR EACH ROW EXECUTE FUNCTION tabellion_istituti_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_istituti_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Denominazione IS DISTINCT FROM NEW.Denominazione THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
        UPDATE Istituti SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Istituti_Nome AFTER UPDATE OF Denominazione ON Istituti FOR EACH ROW EXECUTE FUNCTION tabellion_istituti_nome();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), LEAST(MIN(F.DataInizio), MIN(F.DataInizioFigli)), GREATEST(MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento);
    DELETE FROM ComplessiDocDenominazioni WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    DELETE FROM ComplessiDocSoggetti WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    UPDATE RigheVersamento SET ID_ComplessoDoc = 0 WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc;
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Eliminazione AFTER DELETE ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Inserimento AFTER INSERT ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_inserimento();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_spostamento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto THEN
    UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto;
        UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Spostamento AFTER UPDATE OF ID_Istituto ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_spostamento();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Denominazione IS DISTINCT FROM NEW.Denominazione THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
        UPDATE ComplessiDoc SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Nome AFTER UPDATE OF Denominazione ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_nome();

CREATE OR REPLACE FUNCTION tabellion_inventari_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM InventariDenominazioni WHERE ID_Inventario = OLD.ID_Inventario;
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Inventari_Eliminazione AFTER DELETE ON Inventari FOR EACH ROW EXECUTE FUNCTION tabellion_inventari_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_inventari_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Inventari_Inserimento AFTER INSERT ON Inventari FOR EACH ROW EXECUTE FUNCTION tabellion_inventari_inserimento();

CREATE OR REPLACE FUNCTION tabellion_inventari_spostamento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_Istituto IS DISTINCT FROM NEW.ID_Istituto THEN
    UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto;
        UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Inventari_Spostamento AFTER UPDATE OF ID_Istituto ON Inventari FOR EACH ROW EXECUTE FUNCTION tabellion_inventari_spostamento();

CREATE OR REPLACE FUNCTION tabellion_inventari_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Denominazione IS DISTINCT FROM NEW.Denominazione THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Elemento = NEW.ID_Elemento;
        UPDATE Inventari SET DenomCompleta = COALESCE(COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)), (SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento))) || ' > ', '') || NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Inventari_Nome AFTER UPDATE OF Denominazione ON Inventari FOR EACH ROW EXECUTE FUNCTION tabellion_inventari_nome();

CREATE OR REPLACE FUNCTION tabellion_versamenti_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM RigheVersamento WHERE ID_Versamento = OLD.ID_Versamento;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Versamenti_Eliminazione AFTER DELETE ON Versamenti FOR EACH ROW EXECUTE FUNCTION tabellion_versamenti_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_pergamene_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
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
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Pergamene_Eliminazione AFTER DELETE ON Pergamene FOR EACH ROW EXECUTE FUNCTION tabellion_pergamene_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_pergamene_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Pergamene_Inserimento AFTER INSERT ON Pergamene FOR EACH ROW EXECUTE FUNCTION tabellion_pergamene_inserimento();

CREATE OR REPLACE FUNCTION tabellion_pergamene_spostamento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario THEN
    UPDATE Inventari SET NumeroPergamene = NumeroPergamene - 1 WHERE ID_Inventario = OLD.ID_Inventario;
        UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Pergamene_Spostamento AFTER UPDATE OF ID_Inventario ON Pergamene FOR EACH ROW EXECUTE FUNCTION tabellion_pergamene_spostamento();

CREATE OR REPLACE FUNCTION tabellion_pergamene_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Segnatura IS DISTINCT FROM NEW.Segnatura THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Segnatura, '') WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Pergamene_Nome AFTER UPDATE OF Segnatura ON Pergamene FOR EACH ROW EXECUTE FUNCTION tabellion_pergamene_nome();

CREATE OR REPLACE FUNCTION tabellion_sigilli_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM SGTipo WHERE ID_Sigillo = OLD.ID_Sigillo;
    DELETE FROM SGTitolari WHERE ID_Sigillo = OLD.ID_Sigillo;
    DELETE FROM PGSigilli WHERE ID_Sigillo = OLD.ID_Sigillo;
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Sigilli_Eliminazione AFTER DELETE ON Sigilli FOR EACH ROW EXECUTE FUNCTION tabellion_sigilli_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_sigilli_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Sigilli_Inserimento AFTER INSERT ON Sigilli FOR EACH ROW EXECUTE FUNCTION tabellion_sigilli_inserimento();

CREATE OR REPLACE FUNCTION tabellion_sigilli_spostamento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario THEN
    UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario;
        UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Sigilli_Spostamento AFTER UPDATE OF ID_Inventario ON Sigilli FOR EACH ROW EXECUTE FUNCTION tabellion_sigilli_spostamento();

CREATE OR REPLACE FUNCTION tabellion_sigilli_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Identificativo IS DISTINCT FROM NEW.Identificativo THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Identificativo, '') WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Sigilli_Nome AFTER UPDATE OF Identificativo ON Sigilli FOR EACH ROW EXECUTE FUNCTION tabellion_sigilli_nome();

CREATE OR REPLACE FUNCTION tabellion_datiinventariali_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM DICoseNotevoli WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DIAntroponimi WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DIToponimi WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    DELETE FROM DatiInventarialiSoggetti WHERE ID_DatoInventariale = OLD.ID_DatoInventariale;
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 WHERE ID_Inventario = OLD.ID_Inventario;
    DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = OLD.ID_Elemento;
    DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DatiInventariali_Eliminazione AFTER DELETE ON DatiInventariali FOR EACH ROW EXECUTE FUNCTION tabellion_datiinventariali_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_datiinventariali_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DatiInventariali_Inserimento AFTER INSERT ON DatiInventariali FOR EACH ROW EXECUTE FUNCTION tabellion_datiinventariali_inserimento();

CREATE OR REPLACE FUNCTION tabellion_datiinventariali_spostamento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ID_Inventario IS DISTINCT FROM NEW.ID_Inventario THEN
    UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 WHERE ID_Inventario = OLD.ID_Inventario;
        UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DatiInventariali_Spostamento AFTER UPDATE OF ID_Inventario ON DatiInventariali FOR EACH ROW EXECUTE FUNCTION tabellion_datiinventariali_spostamento();

CREATE OR REPLACE FUNCTION tabellion_datiinventariali_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Titolo IS DISTINCT FROM NEW.Titolo THEN
    UPDATE Elementi SET Denominazione = COALESCE(NEW.Titolo, '') WHERE ID_Elemento = NEW.ID_Elemento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DatiInventariali_Nome AFTER UPDATE OF Titolo ON DatiInventariali FOR EACH ROW EXECUTE FUNCTION tabellion_datiinventariali_nome();

CREATE OR REPLACE FUNCTION tabellion_istituti_denomcompleta() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta THEN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Istituti_DenomCompleta AFTER UPDATE OF DenomCompleta ON Istituti FOR EACH ROW EXECUTE FUNCTION tabellion_istituti_denomcompleta();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_denomcompleta() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta THEN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_DenomCompleta AFTER UPDATE OF DenomCompleta ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_denomcompleta();

CREATE OR REPLACE FUNCTION tabellion_inventari_denomcompleta() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta THEN
    UPDATE Istituti SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE ComplessiDoc SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
        UPDATE Inventari SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = NEW.ID_Elemento);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Inventari_DenomCompleta AFTER UPDATE OF DenomCompleta ON Inventari FOR EACH ROW EXECUTE FUNCTION tabellion_inventari_denomcompleta();

CREATE OR REPLACE FUNCTION tabellion_istituti_codici() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.ISAD_Codice IS DISTINCT FROM NEW.ISAD_Codice OR OLD.ISAD_Sigla IS DISTINCT FROM NEW.ISAD_Sigla THEN
    UPDATE ComplessiDoc SET ISAD_Codice = NEW.ISAD_Codice, ISAD_Sigla = NEW.ISAD_Sigla WHERE ID_Istituto = NEW.ID_Istituto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Istituti_Codici AFTER UPDATE OF ISAD_Codice, ISAD_Sigla ON Istituti FOR EACH ROW EXECUTE FUNCTION tabellion_istituti_codici();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_valore() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Quantita IS DISTINCT FROM NEW.Quantita OR OLD.KConservazione IS DISTINCT FROM NEW.KConservazione OR OLD.KPeriodo IS DISTINCT FROM NEW.KPeriodo OR OLD.KSupporto IS DISTINCT FROM NEW.KSupporto OR OLD.KRilevanza IS DISTINCT FROM NEW.KRilevanza OR OLD.KRarita IS DISTINCT FROM NEW.KRarita THEN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Valore AFTER UPDATE OF Quantita, KConservazione, KPeriodo, KSupporto, KRilevanza, KRarita ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_valore();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_riporto() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF COALESCE(NULLIF(OLD.Quantita, 0), OLD.QuantitaFigli, 0) <> COALESCE(NULLIF(NEW.Quantita, 0), NEW.QuantitaFigli, 0) OR COALESCE(NULLIF(OLD.MetriLineari, 0), OLD.MetriLineariFigli, 0) <> COALESCE(NULLIF(NEW.MetriLineari, 0), NEW.MetriLineariFigli, 0) OR COALESCE(NULLIF(OLD.Valore, 0), OLD.ValoreFigli, 0) <> COALESCE(NULLIF(NEW.Valore, 0), NEW.ValoreFigli, 0) OR OLD.DataInizio IS DISTINCT FROM NEW.DataInizio OR OLD.DataFine IS DISTINCT FROM NEW.DataFine OR OLD.DataInizioFigli IS DISTINCT FROM NEW.DataInizioFigli OR OLD.DataFineFigli IS DISTINCT FROM NEW.DataFineFigli THEN
    UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), LEAST(MIN(F.DataInizio), MIN(F.DataInizioFigli)), GREATEST(MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Riporto AFTER UPDATE OF Quantita, QuantitaFigli, MetriLineari, MetriLineariFigli, Valore, ValoreFigli, DataInizio, DataFine, DataInizioFigli, DataFineFigli ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_riporto();

CREATE OR REPLACE FUNCTION tabellion_complessidoc_riporto_nuovo() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF COALESCE(NEW.Quantita, 0) <> 0 OR COALESCE(NEW.QuantitaFigli, 0) <> 0 OR COALESCE(NEW.MetriLineari, 0) <> 0 OR COALESCE(NEW.MetriLineariFigli, 0) <> 0 OR COALESCE(NEW.Valore, 0) <> 0 OR COALESCE(NEW.ValoreFigli, 0) <> 0 OR COALESCE(NEW.DataInizio, 0) <> 0 OR COALESCE(NEW.DataFine, 0) <> 0 OR COALESCE(NEW.DataInizioFigli, 0) <> 0 OR COALESCE(NEW.DataFineFigli, 0) <> 0 OR COALESCE(NEW.KConservazione, 0) <> 0 OR COALESCE(NEW.KPeriodo, 0) <> 0 OR COALESCE(NEW.KSupporto, 0) <> 0 OR COALESCE(NEW.KRilevanza, 0) <> 0 OR COALESCE(NEW.KRarita, 0) <> 0 THEN
    UPDATE ComplessiDoc SET Valore = COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND Valore IS DISTINCT FROM COALESCE(Quantita, 0) * COALESCE(KConservazione, 0) * COALESCE(KPeriodo, 0) * COALESCE(KSupporto, 0) * COALESCE(KRilevanza, 0) * COALESCE(KRarita, 0);
        UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, DataFineFigli) = (SELECT COALESCE(SUM(COALESCE(NULLIF(F.Quantita, 0), F.QuantitaFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.MetriLineari, 0), F.MetriLineariFigli, 0)), 0), COALESCE(SUM(COALESCE(NULLIF(F.Valore, 0), F.ValoreFigli, 0)), 0), LEAST(MIN(F.DataInizio), MIN(F.DataInizioFigli)), GREATEST(MAX(F.DataFine), MAX(F.DataFineFigli)) FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) WHERE ID_Elemento = (SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDoc_Riporto_Nuovo AFTER INSERT ON ComplessiDoc FOR EACH ROW EXECUTE FUNCTION tabellion_complessidoc_riporto_nuovo();

CREATE OR REPLACE FUNCTION tabellion_links_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari + 1 WHERE ID_Elemento = NEW.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Elemento = NEW.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento) = '02';
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Links_Inserimento AFTER INSERT ON Links FOR EACH ROW EXECUTE FUNCTION tabellion_links_inserimento();

CREATE OR REPLACE FUNCTION tabellion_links_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari - 1 WHERE ID_Elemento = OLD.ID_Elemento AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_ElementoLink) = '03';
    UPDATE Inventari SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Elemento = OLD.ID_ElementoLink AND (SELECT Tipologia FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento) = '02';
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Links_Eliminazione AFTER DELETE ON Links FOR EACH ROW EXECUTE FUNCTION tabellion_links_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_soggetti_inserimento() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.TipoSoggetto = 'P' AND NOT EXISTS (SELECT 1 FROM Persone WHERE ID_Soggetto = NEW.ID_Soggetto) THEN
        INSERT INTO Persone (ID_Persona, ID_Soggetto, Nome, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1);
    END IF;
    IF NEW.TipoSoggetto = 'F' AND NOT EXISTS (SELECT 1 FROM Famiglie WHERE ID_Soggetto = NEW.ID_Soggetto) THEN
        INSERT INTO Famiglie (ID_Famiglia, ID_Soggetto, Nome, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1);
    END IF;
    IF NEW.TipoSoggetto = 'E' AND NOT EXISTS (SELECT 1 FROM Enti WHERE ID_Soggetto = NEW.ID_Soggetto) THEN
        INSERT INTO Enti (ID_Ente, ID_Soggetto, Denominazione, Code, ISAD_Nazione, ISAD_Codice, ISAD_Sigla)
        SELECT NEW.ID_Soggetto, NEW.ID_Soggetto, NEW.Denominazione, COALESCE(NEW.Code, (SELECT Code FROM Config)), 'IT', (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1);
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Soggetti_Inserimento AFTER INSERT ON Soggetti FOR EACH ROW EXECUTE FUNCTION tabellion_soggetti_inserimento();

CREATE OR REPLACE FUNCTION tabellion_soggetti_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM Persone WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Famiglie WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM Enti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM ComplessiDocSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    DELETE FROM DatiInventarialiSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Soggetti_Eliminazione AFTER DELETE ON Soggetti FOR EACH ROW EXECUTE FUNCTION tabellion_soggetti_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_persone_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Nome IS DISTINCT FROM NEW.Nome THEN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Persone_Nome AFTER UPDATE OF Nome ON Persone FOR EACH ROW EXECUTE FUNCTION tabellion_persone_nome();

CREATE OR REPLACE FUNCTION tabellion_persone_codici() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.ISAD_Codice IS NULL THEN
    UPDATE Persone SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Persona = NEW.ID_Persona;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Persone_Codici AFTER UPDATE OF Nome ON Persone FOR EACH ROW EXECUTE FUNCTION tabellion_persone_codici();

CREATE OR REPLACE FUNCTION tabellion_persone_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM PersoneDenominazioni WHERE ID_Persona = OLD.ID_Persona;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Persone_Eliminazione AFTER DELETE ON Persone FOR EACH ROW EXECUTE FUNCTION tabellion_persone_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_famiglie_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Nome IS DISTINCT FROM NEW.Nome THEN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Nome, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Famiglie_Nome AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW EXECUTE FUNCTION tabellion_famiglie_nome();

CREATE OR REPLACE FUNCTION tabellion_famiglie_codici() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.ISAD_Codice IS NULL THEN
    UPDATE Famiglie SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Famiglia = NEW.ID_Famiglia;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Famiglie_Codici AFTER UPDATE OF Nome ON Famiglie FOR EACH ROW EXECUTE FUNCTION tabellion_famiglie_codici();

CREATE OR REPLACE FUNCTION tabellion_famiglie_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM FamiglieDenominazioni WHERE ID_Famiglia = OLD.ID_Famiglia;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Famiglie_Eliminazione AFTER DELETE ON Famiglie FOR EACH ROW EXECUTE FUNCTION tabellion_famiglie_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_enti_nome() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF OLD.Denominazione IS DISTINCT FROM NEW.Denominazione THEN
    UPDATE Soggetti SET Denominazione = COALESCE(NEW.Denominazione, '') WHERE ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Enti_Nome AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW EXECUTE FUNCTION tabellion_enti_nome();

CREATE OR REPLACE FUNCTION tabellion_enti_codici() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.ISAD_Codice IS NULL THEN
    UPDATE Enti SET ISAD_Nazione = 'IT', ISAD_Codice = (SELECT I.ISAD_Codice FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1), ISAD_Sigla = (SELECT I.ISAD_Sigla FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL ORDER BY I.ID_Istituto LIMIT 1) WHERE ID_Ente = NEW.ID_Ente;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Enti_Codici AFTER UPDATE OF Denominazione ON Enti FOR EACH ROW EXECUTE FUNCTION tabellion_enti_codici();

CREATE OR REPLACE FUNCTION tabellion_enti_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM EntiDenominazioni WHERE ID_Ente = OLD.ID_Ente;
    DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Enti_Eliminazione AFTER DELETE ON Enti FOR EACH ROW EXECUTE FUNCTION tabellion_enti_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_antroponimi_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM PGAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
    DELETE FROM DIAntroponimi WHERE ID_Antroponimo = OLD.ID_Antroponimo;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Antroponimi_Eliminazione AFTER DELETE ON Antroponimi FOR EACH ROW EXECUTE FUNCTION tabellion_antroponimi_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_toponimi_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM PGToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
    DELETE FROM DIToponimi WHERE ID_Toponimo = OLD.ID_Toponimo;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Toponimi_Eliminazione AFTER DELETE ON Toponimi FOR EACH ROW EXECUTE FUNCTION tabellion_toponimi_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_titolari_eliminazione() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    DELETE FROM SGTitolari WHERE ID_Titolare = OLD.ID_Titolare;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Titolari_Eliminazione AFTER DELETE ON Titolari FOR EACH ROW EXECUTE FUNCTION tabellion_titolari_eliminazione();

CREATE OR REPLACE FUNCTION tabellion_links_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE Links SET Code = (SELECT Code FROM Config) WHERE ID_Elemento = NEW.ID_Elemento AND ID_ElementoLink = NEW.ID_ElementoLink;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Links_Codice AFTER INSERT ON Links FOR EACH ROW EXECUTE FUNCTION tabellion_links_codice();

CREATE OR REPLACE FUNCTION tabellion_righeversamento_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE RigheVersamento SET Code = (SELECT Code FROM Config) WHERE ID_RigaVersamento = NEW.ID_RigaVersamento;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER RigheVersamento_Codice AFTER INSERT ON RigheVersamento FOR EACH ROW EXECUTE FUNCTION tabellion_righeversamento_codice();

CREATE OR REPLACE FUNCTION tabellion_pgnotazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PGNotazioni SET Code = (SELECT Code FROM Config) WHERE ID_PgNotazione = NEW.ID_PgNotazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PGNotazioni_Codice AFTER INSERT ON PGNotazioni FOR EACH ROW EXECUTE FUNCTION tabellion_pgnotazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_pgaltresegnature_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PGAltreSegnature SET Code = (SELECT Code FROM Config) WHERE ID_PGAltraSegnatura = NEW.ID_PGAltraSegnatura;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PGAltreSegnature_Codice AFTER INSERT ON PGAltreSegnature FOR EACH ROW EXECUTE FUNCTION tabellion_pgaltresegnature_codice();

CREATE OR REPLACE FUNCTION tabellion_pgsigilli_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PGSigilli SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Sigillo = NEW.ID_Sigillo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PGSigilli_Codice AFTER INSERT ON PGSigilli FOR EACH ROW EXECUTE FUNCTION tabellion_pgsigilli_codice();

CREATE OR REPLACE FUNCTION tabellion_dicosenotevoli_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE DICoseNotevoli SET Code = (SELECT Code FROM Config) WHERE ID_DICosaNotevole = NEW.ID_DICosaNotevole;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DICoseNotevoli_Codice AFTER INSERT ON DICoseNotevoli FOR EACH ROW EXECUTE FUNCTION tabellion_dicosenotevoli_codice();

CREATE OR REPLACE FUNCTION tabellion_soggetti_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE Soggetti SET Code = (SELECT Code FROM Config) WHERE ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Soggetti_Codice AFTER INSERT ON Soggetti FOR EACH ROW EXECUTE FUNCTION tabellion_soggetti_codice();

CREATE OR REPLACE FUNCTION tabellion_complessidocdenominazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE ComplessiDocDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDocDenominazioni_Codice AFTER INSERT ON ComplessiDocDenominazioni FOR EACH ROW EXECUTE FUNCTION tabellion_complessidocdenominazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_inventaridenominazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE InventariDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER InventariDenominazioni_Codice AFTER INSERT ON InventariDenominazioni FOR EACH ROW EXECUTE FUNCTION tabellion_inventaridenominazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_personedenominazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PersoneDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PersoneDenominazioni_Codice AFTER INSERT ON PersoneDenominazioni FOR EACH ROW EXECUTE FUNCTION tabellion_personedenominazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_famigliedenominazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE FamiglieDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER FamiglieDenominazioni_Codice AFTER INSERT ON FamiglieDenominazioni FOR EACH ROW EXECUTE FUNCTION tabellion_famigliedenominazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_entidenominazioni_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE EntiDenominazioni SET Code = (SELECT Code FROM Config) WHERE ID_Denominazione = NEW.ID_Denominazione;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER EntiDenominazioni_Codice AFTER INSERT ON EntiDenominazioni FOR EACH ROW EXECUTE FUNCTION tabellion_entidenominazioni_codice();

CREATE OR REPLACE FUNCTION tabellion_antroponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE Antroponimi SET Code = (SELECT Code FROM Config) WHERE ID_Antroponimo = NEW.ID_Antroponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Antroponimi_Codice AFTER INSERT ON Antroponimi FOR EACH ROW EXECUTE FUNCTION tabellion_antroponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_toponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE Toponimi SET Code = (SELECT Code FROM Config) WHERE ID_Toponimo = NEW.ID_Toponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Toponimi_Codice AFTER INSERT ON Toponimi FOR EACH ROW EXECUTE FUNCTION tabellion_toponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_titolari_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE Titolari SET Code = (SELECT Code FROM Config) WHERE ID_Titolare = NEW.ID_Titolare;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Titolari_Codice AFTER INSERT ON Titolari FOR EACH ROW EXECUTE FUNCTION tabellion_titolari_codice();

CREATE OR REPLACE FUNCTION tabellion_complessidocsoggetti_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE ComplessiDocSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc AND ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER ComplessiDocSoggetti_Codice AFTER INSERT ON ComplessiDocSoggetti FOR EACH ROW EXECUTE FUNCTION tabellion_complessidocsoggetti_codice();

CREATE OR REPLACE FUNCTION tabellion_datiinventarialisoggetti_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE DatiInventarialiSoggetti SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Soggetto = NEW.ID_Soggetto;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DatiInventarialiSoggetti_Codice AFTER INSERT ON DatiInventarialiSoggetti FOR EACH ROW EXECUTE FUNCTION tabellion_datiinventarialisoggetti_codice();

CREATE OR REPLACE FUNCTION tabellion_pgantroponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PGAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_PGAntroponimo = NEW.ID_PGAntroponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PGAntroponimi_Codice AFTER INSERT ON PGAntroponimi FOR EACH ROW EXECUTE FUNCTION tabellion_pgantroponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_diantroponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE DIAntroponimi SET Code = (SELECT Code FROM Config) WHERE ID_DIAntroponimo = NEW.ID_DIAntroponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DIAntroponimi_Codice AFTER INSERT ON DIAntroponimi FOR EACH ROW EXECUTE FUNCTION tabellion_diantroponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_pgtoponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE PGToponimi SET Code = (SELECT Code FROM Config) WHERE ID_Pergamena = NEW.ID_Pergamena AND ID_Toponimo = NEW.ID_Toponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER PGToponimi_Codice AFTER INSERT ON PGToponimi FOR EACH ROW EXECUTE FUNCTION tabellion_pgtoponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_ditoponimi_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE DIToponimi SET Code = (SELECT Code FROM Config) WHERE ID_DatoInventariale = NEW.ID_DatoInventariale AND ID_Toponimo = NEW.ID_Toponimo;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER DIToponimi_Codice AFTER INSERT ON DIToponimi FOR EACH ROW EXECUTE FUNCTION tabellion_ditoponimi_codice();

CREATE OR REPLACE FUNCTION tabellion_sgtitolari_codice() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NEW.Code IS NULL THEN
    UPDATE SGTitolari SET Code = (SELECT Code FROM Config) WHERE ID_SGTitolare = NEW.ID_SGTitolare;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER SGTitolari_Codice AFTER INSERT ON SGTitolari FOR EACH ROW EXECUTE FUNCTION tabellion_sgtitolari_codice();

CREATE OR REPLACE FUNCTION tabellion_pergamene_righe() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NOT EXISTS (SELECT 1 FROM PGSupporti WHERE ID_Pergamena = NEW.ID_Pergamena) THEN
        INSERT INTO PGSupporti (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code;
    END IF;
    IF NOT EXISTS (SELECT 1 FROM PGTraditio WHERE ID_Pergamena = NEW.ID_Pergamena) THEN
        INSERT INTO PGTraditio (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code;
    END IF;
    IF NOT EXISTS (SELECT 1 FROM PGEleGrafici WHERE ID_Pergamena = NEW.ID_Pergamena) THEN
        INSERT INTO PGEleGrafici (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code;
    END IF;
    IF NOT EXISTS (SELECT 1 FROM PGNoteStoriche WHERE ID_Pergamena = NEW.ID_Pergamena) THEN
        INSERT INTO PGNoteStoriche (ID_Pergamena, Code)
        SELECT NEW.ID_Pergamena, NEW.Code;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Pergamene_Righe AFTER INSERT ON Pergamene FOR EACH ROW EXECUTE FUNCTION tabellion_pergamene_righe();

CREATE OR REPLACE FUNCTION tabellion_sigilli_righe() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    IF NOT EXISTS (SELECT 1 FROM SGTipo WHERE ID_Sigillo = NEW.ID_Sigillo) THEN
        INSERT INTO SGTipo (ID_Sigillo, Code)
        SELECT NEW.ID_Sigillo, NEW.Code;
    END IF;
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Sigilli_Righe AFTER INSERT ON Sigilli FOR EACH ROW EXECUTE FUNCTION tabellion_sigilli_righe();

ALTER TABLE IndiceWeb ADD COLUMN IF NOT EXISTS Testo tsvector;
CREATE INDEX IF NOT EXISTS IndiceWeb_Testo ON IndiceWeb USING GIN (Testo);


-- A table of the site's schema by its name in any spelling; Null when there is none.
CREATE OR REPLACE FUNCTION tabellion_tabella_del_sito(tabella text) RETURNS regclass
LANGUAGE sql STABLE SET search_path = public, pg_temp AS $$
    SELECT c.oid::regclass FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace
    WHERE n.nspname = 'public' AND c.relkind IN ('r', 'p') AND c.relname = lower(tabella)
$$;

-- Bounds the identity sequences of one table to the site's key range and puts them past the
-- keys already in that range. Runs with the owner's rights: the import of an archivist calls
-- it after rows came in with their own keys. False when there is no such table.
CREATE OR REPLACE FUNCTION tabellion_riallinea_chiave(tabella text) RETURNS boolean
LANGUAGE plpgsql SECURITY DEFINER SET search_path = public, pg_temp AS $$
DECLARE
    relazione regclass := tabellion_tabella_del_sito(tabella);
    colonna name;
    inizio integer;
    fine integer;
    massimo integer;
BEGIN
    IF relazione IS NULL THEN
        RETURN false;
    END IF;
    SELECT ID_Start, ID_End INTO inizio, fine FROM Config LIMIT 1;
    IF inizio IS NULL THEN
        RETURN true;
    END IF;
    FOR colonna IN
        SELECT attname FROM pg_attribute
        WHERE attrelid = relazione AND attidentity <> '' AND NOT attisdropped
    LOOP
        EXECUTE format('SELECT MAX(%I) FROM %s WHERE %I BETWEEN $1 AND $2',
                       colonna, relazione, colonna)
            INTO massimo USING inizio, fine;
        EXECUTE format('ALTER TABLE %s ALTER COLUMN %I SET MINVALUE %s SET MAXVALUE %s '
                       'SET START WITH %s RESTART WITH %s',
                       relazione, colonna, inizio, fine, inizio,
                       LEAST(COALESCE(massimo + 1, inizio), fine));
        IF massimo = fine THEN
            -- The range is full: the next insert must fail, not reuse a key.
            PERFORM setval(pg_get_serial_sequence(relazione::text, colonna), fine, true);
        END IF;
    END LOOP;
    RETURN true;
END
$$;

-- Every table's identity sequences, when the range changes.
CREATE OR REPLACE FUNCTION tabellion_allinea_chiavi() RETURNS void
LANGUAGE plpgsql SET search_path = public, pg_temp AS $$
DECLARE
    tabella name;
BEGIN
    FOR tabella IN
        SELECT DISTINCT c.relname FROM pg_attribute a
        JOIN pg_class c ON c.oid = a.attrelid JOIN pg_namespace n ON n.oid = c.relnamespace
        WHERE n.nspname = 'public' AND c.relkind IN ('r', 'p') AND a.attidentity <> ''
            AND NOT a.attisdropped
    LOOP
        PERFORM tabellion_riallinea_chiave(tabella);
    END LOOP;
END
$$;

CREATE OR REPLACE FUNCTION tabellion_config_intervallo() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
    PERFORM tabellion_allinea_chiavi();
    RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER Config_Intervallo AFTER INSERT OR UPDATE OF ID_Start, ID_End ON Config
    FOR EACH STATEMENT EXECUTE FUNCTION tabellion_config_intervallo();

-- A table's own triggers off (acceso false) or on again, inside the caller's transaction. Runs
-- with the owner's rights: the import of an archivist calls it. False when there is no such
-- table.
CREATE OR REPLACE FUNCTION tabellion_interruttore_trigger(tabella text, acceso boolean)
RETURNS boolean
LANGUAGE plpgsql SECURITY DEFINER SET search_path = public, pg_temp AS $$
DECLARE
    relazione regclass := tabellion_tabella_del_sito(tabella);
BEGIN
    IF relazione IS NULL THEN
        RETURN false;
    END IF;
    EXECUTE format('ALTER TABLE %s %s TRIGGER USER', relazione,
                   CASE WHEN acceso THEN 'ENABLE' ELSE 'DISABLE' END);
    RETURN true;
END
$$;

-- What the archivists' group may do, and no more: connect, read and write the rows of every
-- table and view (of Config only Valore and DataValore), use the sequences, and call the two
-- functions above. Run by the owner: at the creation of the site and by every upgrade.
CREATE OR REPLACE FUNCTION tabellion_concedi_diritti(gruppo text) RETURNS void
LANGUAGE plpgsql SET search_path = public, pg_temp AS $$
BEGIN
    EXECUTE format('REVOKE ALL ON DATABASE %I FROM PUBLIC', current_database());
    EXECUTE format('GRANT CONNECT ON DATABASE %I TO %I', current_database(), gruppo);
    REVOKE CREATE ON SCHEMA public FROM PUBLIC;
    EXECUTE format('GRANT USAGE ON SCHEMA public TO %I', gruppo);
    EXECUTE format('GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA public TO %I',
                   gruppo);
    EXECUTE format('REVOKE INSERT, UPDATE, DELETE ON Config FROM %I', gruppo);
    EXECUTE format('GRANT UPDATE (Valore, DataValore) ON Config TO %I', gruppo);
    EXECUTE format('GRANT USAGE, SELECT ON ALL SEQUENCES IN SCHEMA public TO %I', gruppo);
    EXECUTE format('GRANT EXECUTE ON FUNCTION tabellion_interruttore_trigger(text, boolean), '
                   'tabellion_riallinea_chiave(text) TO %I', gruppo);
END
$$;

-- Triggers fire without EXECUTE on their functions: no function is anyone's but the owner's
-- until tabellion_concedi_diritti gives the group its two.
REVOKE EXECUTE ON ALL FUNCTIONS IN SCHEMA public FROM PUBLIC;

INSERT INTO Config (Code, Descrizione, Versione, ID_Start, ID_End, Valore, DataValore)
SELECT 'SITO', NULL, 4, 1, 999999999, 0, NULL WHERE NOT EXISTS (SELECT 1 FROM Config);

UPDATE Config SET Versione = 4 WHERE Versione IS NULL OR Versione < 4;

SELECT tabellion_allinea_chiavi();

DO $$
DECLARE
    gruppo name;
BEGIN
    FOR gruppo IN
        SELECT DISTINCT pg_get_userbyid(a.grantee) FROM pg_class c, aclexplode(c.relacl) a
        WHERE c.oid = 'elementi'::regclass AND a.privilege_type = 'INSERT'
            AND a.grantee <> 0 AND a.grantee <> c.relowner
    LOOP
        PERFORM tabellion_concedi_diritti(gruppo);
    END LOOP;
END
$$;
