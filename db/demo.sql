-- Tabellion Archivista: the demo archive, in SQL that both SQLite and PostgreSQL read.
-- Loaded after schema.sql and riferimenti.sql into the demo database of the program folder.
-- Only Elementi and Soggetti rows are inserted here: the database creates the detail rows
-- (with keys, owners, counters and Code), which are then filled by name.

UPDATE Config SET Code = 'DEMO', Descrizione = 'Archivio dimostrativo di Tabellion Archivista',
    Versione = 4, Valore = 1.5, DataValore = '01/01/2026';

-- Istituti, con le loro sedi (03) e i magazzini (04)

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES (NULL, '01', 'Archivio di Stato di Lucca');
UPDATE Istituti SET
    Denominazione = 'Archivio di Stato di Lucca',
    Tipologia = '01',
    Indirizzo = 'Piazza Guidiccioni 8',
    Citta = 'Lucca',
    Cap = '55100',
    Provincia = 'LU',
    Telefono = '0583 491465',
    Fax = '0583 490034',
    EMail = 'as-lu@cultura.gov.it',
    UrlWeb = 'https://archiviodistatolucca.cultura.gov.it',
    Responsabile = 'Laura Menchetti',
    Orario = 'Lunedì-venerdì 8.30-17.30; sabato 8.30-13.30',
    Note = 'Istituito nel 1859 e ordinato da Salvatore Bongi, conserva gli archivi della Repubblica di Lucca, degli enti ecclesiastici soppressi, dei notai e di numerose famiglie lucchesi.',
    NoteDirezione = 'Sala di studio chiusa nelle due settimane centrali di agosto.',
    ISAD_Codice = 'SAS046',
    ISAD_Sigla = 'ASLu'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '01', 'Sede di Palazzo Guidiccioni');
UPDATE Istituti SET
    Denominazione = 'Sede di Palazzo Guidiccioni',
    Tipologia = '03',
    Indirizzo = 'Piazza Guidiccioni 8',
    Citta = 'Lucca',
    Cap = '55100',
    Provincia = 'LU',
    Telefono = '0583 491465',
    Fax = '0583 490034',
    EMail = 'as-lu@cultura.gov.it',
    Orario = 'Lunedì-venerdì 8.30-17.30; sabato 8.30-13.30',
    Note = 'Sala di studio, sala delle pergamene e uffici.'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '01', 'Deposito di Sant''Anna');
UPDATE Istituti SET
    Denominazione = 'Deposito di Sant''Anna',
    Tipologia = '04',
    Indirizzo = 'Viale Giacomo Puccini 420',
    Citta = 'Lucca',
    Cap = '55100',
    Provincia = 'LU',
    Note = 'Deposito a scaffalature compatte per gli archivi notarili e di età moderna; il materiale si richiede con un giorno di anticipo.'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES (NULL, '01', 'Archivio di Stato di Pistoia');
UPDATE Istituti SET
    Denominazione = 'Archivio di Stato di Pistoia',
    Tipologia = '01',
    Indirizzo = 'Piazzetta Scuole Normali 2',
    Citta = 'Pistoia',
    Cap = '51100',
    Provincia = 'PT',
    Telefono = '0573 21690',
    Fax = '0573 368175',
    EMail = 'as-pt@cultura.gov.it',
    UrlWeb = 'https://archiviodistatopistoia.cultura.gov.it',
    Responsabile = 'Stefano Tesi',
    Orario = 'Lunedì-venerdì 8.30-13.30; martedì e giovedì anche 14.30-17.00',
    Note = 'Conserva gli archivi del Comune di Pistoia dal secolo XII, dell''Opera di San Jacopo, degli uffici statali della provincia e dei notai del territorio.',
    ISAD_Codice = 'SAS047',
    ISAD_Sigla = 'ASPt'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '01', 'Sede di piazzetta Scuole Normali');
UPDATE Istituti SET
    Denominazione = 'Sede di piazzetta Scuole Normali',
    Tipologia = '03',
    Indirizzo = 'Piazzetta Scuole Normali 2',
    Citta = 'Pistoia',
    Cap = '51100',
    Provincia = 'PT',
    Telefono = '0573 21690',
    Fax = '0573 368175',
    EMail = 'as-pt@cultura.gov.it',
    Orario = 'Lunedì-venerdì 8.30-13.30; martedì e giovedì anche 14.30-17.00'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '01', 'Deposito di Sant''Agostino');
UPDATE Istituti SET
    Denominazione = 'Deposito di Sant''Agostino',
    Tipologia = '04',
    Indirizzo = 'Via Enrico Fermi 12',
    Citta = 'Pistoia',
    Cap = '51100',
    Provincia = 'PT',
    Note = 'Deposito per gli archivi degli uffici statali del Novecento.'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES (NULL, '01', 'Sezione di Archivio di Stato di Pescia');
UPDATE Istituti SET
    Denominazione = 'Sezione di Archivio di Stato di Pescia',
    Tipologia = '02',
    Indirizzo = 'Piazza Mazzini 1',
    Citta = 'Pescia',
    Cap = '51017',
    Provincia = 'PT',
    Telefono = '0572 477050',
    EMail = 'sas-pescia@cultura.gov.it',
    Responsabile = 'Paolo Bonelli',
    Orario = 'Martedì e giovedì 9.00-13.00',
    Note = 'Conserva gli archivi del Vicariato della Valdinievole, dei comuni soppressi e dei notai della zona.',
    ISAD_Codice = 'SSA047',
    ISAD_Sigla = 'SASPe'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia'), '01', 'Sede di piazza Mazzini');
UPDATE Istituti SET
    Denominazione = 'Sede di piazza Mazzini',
    Tipologia = '03',
    Indirizzo = 'Piazza Mazzini 1',
    Citta = 'Pescia',
    Cap = '51017',
    Provincia = 'PT',
    Telefono = '0572 477050',
    EMail = 'sas-pescia@cultura.gov.it',
    Orario = 'Martedì e giovedì 9.00-13.00'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia'), '01', 'Deposito di Collodi');
UPDATE Istituti SET
    Denominazione = 'Deposito di Collodi',
    Tipologia = '04',
    Indirizzo = 'Via Francesca Vecchia 5',
    Citta = 'Pescia',
    Cap = '51012',
    Provincia = 'PT'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi');
UPDATE Elementi SET Pubblicato = 'S'
  WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi';

-- Complessi documentari: fondi (03), serie (04), sottoserie (05). Each level's Quantita and
-- MetriLineari are the totals of the level, and agree with what its sub-levels declare, but for
-- the fondo Vicariato di Pescia (see there).

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '02', 'Diplomatico');
UPDATE ComplessiDoc SET
    Denominazione = 'Diplomatico',
    NoteStoriche = 'Il fondo riunisce le pergamene sciolte pervenute all''Archivio dalle magistrature della Repubblica, dagli enti ecclesiastici soppressi in età napoleonica e dopo l''Unità, da acquisti e da doni. Le pergamene sono conservate per provenienza e, all''interno di ciascuna provenienza, in ordine cronologico, secondo l''ordinamento dato al fondo nell''Ottocento.',
    Note = 'S. Bongi, Inventario del R. Archivio di Stato in Lucca, Lucca 1872-1888.',
    Classificazione = 'pergamene sciolte',
    KConservazione = 1.2,
    KPeriodo = 1.8,
    KSupporto = 1.5,
    KRilevanza = 1.6,
    KRarita = 1.4,
    Quantita = 2450,
    MetriLineari = 48.5,
    DataInizio = 7900101,
    DataFine = 18001231,
    DescrizioneEstremi = 'sec. VIII - sec. XVIII',
    DescrizioneEstensioni = 'con lacune per i secoli IX e X',
    NoteDirezione = 'Riproduzione digitale in corso per le provenienze più consultate.',
    Ordinamento = 1,
    Topografico = 'Sala delle pergamene, armadi 1-24',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Diplomatico');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Diplomatico';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Diplomatico'), '02', 'Pergamene di Altopascio');
UPDATE ComplessiDoc SET
    Denominazione = 'Pergamene di Altopascio',
    NoteStoriche = 'Pergamene dello Spedale di San Jacopo di Altopascio: donazioni, compravendite, locazioni e privilegi che documentano i beni e i diritti dell''ente nel territorio lucchese e in Valdinievole.',
    Classificazione = 'pergamene sciolte',
    KConservazione = 1.1,
    KPeriodo = 1.8,
    KSupporto = 1.5,
    KRilevanza = 1.7,
    KRarita = 1.5,
    Quantita = 1320,
    MetriLineari = 26,
    DataInizio = 10980101,
    DataFine = 15871231,
    DescrizioneEstremi = '1098 - 1587',
    Ordinamento = 1,
    Topografico = 'Sala delle pergamene, armadi 1-12',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Pergamene di Altopascio');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Pergamene di Altopascio';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Diplomatico'), '02', 'Pergamene di San Frediano');
UPDATE ComplessiDoc SET
    Denominazione = 'Pergamene di San Frediano',
    NoteStoriche = 'Pergamene dei canonici regolari di San Frediano di Lucca, pervenute con le soppressioni di età napoleonica.',
    Classificazione = 'pergamene sciolte',
    KConservazione = 1.3,
    KPeriodo = 1.7,
    KSupporto = 1.5,
    KRilevanza = 1.4,
    KRarita = 1.3,
    Quantita = 830,
    MetriLineari = 18,
    DataInizio = 11400101,
    DataFine = 17851231,
    DescrizioneEstremi = '1140 - 1785',
    Ordinamento = 2,
    Topografico = 'Sala delle pergamene, armadi 13-20',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Pergamene di San Frediano');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Pergamene di San Frediano';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '02', 'Archivio dei notari');
UPDATE ComplessiDoc SET
    Denominazione = 'Archivio dei notari',
    NoteStoriche = 'L''archivio pubblico dei notari fu istituito per custodire gli atti dei notai defunti o cessati dall''esercizio, che gli eredi erano tenuti a consegnare. Il fondo raccoglie i protocolli, le filze e i testamenti dei notai lucchesi dal secolo XIV alla riforma del notariato dell''Ottocento, ordinati per notaio e, per ciascuno, per data.',
    Note = 'S. Bongi, Inventario del R. Archivio di Stato in Lucca, Lucca 1872-1888.',
    Classificazione = 'protocolli, filze e registri',
    KConservazione = 1.1,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.5,
    KRarita = 1.2,
    Quantita = 5200,
    MetriLineari = 410,
    DataInizio = 13020101,
    DataFine = 18651231,
    DescrizioneEstremi = '1302 - 1865',
    Ordinamento = 2,
    Topografico = 'Deposito di Sant''Anna, compattabili 1-40',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari'), '02', 'Atti dei notai');
UPDATE ComplessiDoc SET
    Denominazione = 'Atti dei notai',
    NoteStoriche = 'Protocolli e filze di imbreviature, disposti in ordine alfabetico dei notai.',
    Classificazione = 'protocolli e filze',
    KConservazione = 1.1,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.5,
    KRarita = 1.2,
    Quantita = 4800,
    MetriLineari = 380,
    DataInizio = 13020101,
    DataFine = 18651231,
    DescrizioneEstremi = '1302 - 1865',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti dei notai');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Atti dei notai';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti dei notai'), '02', 'Notai del secolo XIV');
UPDATE ComplessiDoc SET
    Denominazione = 'Notai del secolo XIV',
    NoteStoriche = 'Protocolli dei notai che rogarono in Lucca e nelle Sei Miglia nel Trecento.',
    Classificazione = 'protocolli',
    KConservazione = 1.0,
    KPeriodo = 1.7,
    KSupporto = 1.1,
    KRilevanza = 1.6,
    KRarita = 1.3,
    Quantita = 1900,
    MetriLineari = 150,
    DataInizio = 13020101,
    DataFine = 13991231,
    DescrizioneEstremi = '1302 - 1399',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XIV');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XIV';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti dei notai'), '02', 'Notai del secolo XV');
UPDATE ComplessiDoc SET
    Denominazione = 'Notai del secolo XV',
    NoteStoriche = 'Protocolli e filze dei notai attivi tra la signoria di Paolo Guinigi e la fine del Quattrocento.',
    Classificazione = 'protocolli e filze',
    KConservazione = 1.1,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.5,
    KRarita = 1.2,
    Quantita = 2700,
    MetriLineari = 220,
    DataInizio = 14000101,
    DataFine = 14991231,
    DescrizioneEstremi = '1400 - 1499',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XV');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XV';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari'), '02', 'Testamenti');
UPDATE ComplessiDoc SET
    Denominazione = 'Testamenti',
    NoteStoriche = 'Testamenti consegnati chiusi ai notai e aperti dopo la morte dei testatori.',
    Classificazione = 'filze',
    KConservazione = 1.2,
    KPeriodo = 1.4,
    KSupporto = 1.1,
    KRilevanza = 1.3,
    KRarita = 1.2,
    Quantita = 350,
    MetriLineari = 25,
    DataInizio = 13500101,
    DataFine = 18001231,
    DescrizioneEstremi = '1350 - 1800',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Testamenti');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Testamenti';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '02', 'Archivio Guinigi');
UPDATE ComplessiDoc SET
    Denominazione = 'Archivio Guinigi',
    NoteStoriche = 'Archivio della famiglia Guinigi, mercanti e banchieri lucchesi che con Paolo Guinigi tennero la signoria della città dal 1400 al 1430. Comprende il carteggio familiare, i libri della compagnia commerciale, attiva nel commercio della seta con filiali nelle Fiandre, in Francia e in Inghilterra, e le scritture di amministrazione del patrimonio fino al secolo XIX.',
    Note = 'Archivio Guinigi. Inventario, a cura dell''Archivio di Stato di Lucca, 1994 (dattiloscritto).',
    Classificazione = 'registri, filze e buste',
    KConservazione = 1.2,
    KPeriodo = 1.6,
    KSupporto = 1.1,
    KRilevanza = 1.8,
    KRarita = 1.6,
    Quantita = 420,
    MetriLineari = 36,
    DataInizio = 13400101,
    DataFine = 18301231,
    DescrizioneEstremi = '1340 - 1830',
    NoteDirezione = 'Alcuni libri di commercio sono in restauro presso il laboratorio dell''Istituto.',
    Ordinamento = 3,
    Topografico = 'Sala 4, scaffali 1-9',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Archivio Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio Guinigi'), '02', 'Carteggio Guinigi');
UPDATE ComplessiDoc SET
    Denominazione = 'Carteggio Guinigi',
    NoteStoriche = 'Lettere ricevute dai membri della famiglia e dai soci della compagnia, con minute di lettere spedite.',
    Classificazione = 'filze',
    KConservazione = 1.2,
    KPeriodo = 1.6,
    KSupporto = 1.1,
    KRilevanza = 1.8,
    KRarita = 1.6,
    Quantita = 160,
    MetriLineari = 12,
    DataInizio = 13790101,
    DataFine = 18201231,
    DescrizioneEstremi = '1379 - 1820',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Carteggio Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Carteggio Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio Guinigi'), '02', 'Amministrazione patrimoniale Guinigi');
UPDATE ComplessiDoc SET
    Denominazione = 'Amministrazione patrimoniale Guinigi',
    NoteStoriche = 'Scritture contabili della compagnia e dell''amministrazione dei beni di famiglia in città e nel contado.',
    Classificazione = 'registri e buste',
    KConservazione = 1.1,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.5,
    KRarita = 1.4,
    Quantita = 250,
    MetriLineari = 22,
    DataInizio = 13400101,
    DataFine = 18301231,
    DescrizioneEstremi = '1340 - 1830',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione patrimoniale Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Amministrazione patrimoniale Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione patrimoniale Guinigi'), '02', 'Libri di entrata e uscita');
UPDATE ComplessiDoc SET
    Denominazione = 'Libri di entrata e uscita',
    NoteStoriche = 'Libri grandi, giornali e quaderni di cassa della compagnia Guinigi e dei suoi eredi.',
    Classificazione = 'registri',
    KConservazione = 1.0,
    KPeriodo = 1.6,
    KSupporto = 1.1,
    KRilevanza = 1.7,
    KRarita = 1.5,
    Quantita = 140,
    MetriLineari = 12,
    DataInizio = 13710101,
    DataFine = 17991231,
    DescrizioneEstremi = '1371 - 1799',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Libri di entrata e uscita');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Libri di entrata e uscita';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione patrimoniale Guinigi'), '02', 'Contratti e locazioni');
UPDATE ComplessiDoc SET
    Denominazione = 'Contratti e locazioni',
    NoteStoriche = 'Contratti di acquisto, permuta e locazione dei poderi della famiglia nel contado lucchese.',
    Classificazione = 'buste',
    KConservazione = 1.2,
    KPeriodo = 1.4,
    KSupporto = 1.1,
    KRilevanza = 1.3,
    KRarita = 1.2,
    Quantita = 100,
    MetriLineari = 9,
    DataInizio = 13400101,
    DataFine = 18301231,
    DescrizioneEstremi = '1340 - 1830',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Contratti e locazioni');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '02' AND Denominazione = 'Contratti e locazioni';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '02', 'Opera di San Jacopo');
UPDATE ComplessiDoc SET
    Denominazione = 'Opera di San Jacopo',
    NoteStoriche = 'L''Opera di San Jacopo, magistratura istituita dal Comune di Pistoia per amministrare la cappella del santo patrono nella cattedrale di San Zeno, ne gestiva i beni, le offerte e il tesoro, compreso l''altare d''argento. Soppressa in età leopoldina, il suo archivio passò al Patrimonio ecclesiastico e quindi all''Archivio di Stato.',
    Note = 'L. Gai, L''altare argenteo di San Iacopo nel duomo di Pistoia, Torino 1984.',
    Classificazione = 'registri, filze e pergamene',
    KConservazione = 1.2,
    KPeriodo = 1.6,
    KSupporto = 1.2,
    KRilevanza = 1.7,
    KRarita = 1.5,
    Quantita = 720,
    MetriLineari = 48,
    DataInizio = 12870101,
    DataFine = 17841231,
    DescrizioneEstremi = '1287 - 1784',
    Ordinamento = 1,
    Topografico = 'Piano terreno, sala A, scaffali 1-16',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo'), '02', 'Deliberazioni degli operai');
UPDATE ComplessiDoc SET
    Denominazione = 'Deliberazioni degli operai',
    NoteStoriche = 'Registri dei partiti e delle deliberazioni degli operai e dei loro camarlinghi.',
    Classificazione = 'registri',
    KConservazione = 1.1,
    KPeriodo = 1.6,
    KSupporto = 1.1,
    KRilevanza = 1.6,
    KRarita = 1.4,
    Quantita = 95,
    MetriLineari = 6,
    DataInizio = 13790101,
    DataFine = 17841231,
    DescrizioneEstremi = '1379 - 1784',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Deliberazioni degli operai');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Deliberazioni degli operai';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo'), '02', 'Amministrazione dell''Opera');
UPDATE ComplessiDoc SET
    Denominazione = 'Amministrazione dell''Opera',
    NoteStoriche = 'Scritture contabili e inventari dei beni e del tesoro della cappella.',
    Classificazione = 'registri e filze',
    KConservazione = 1.2,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.4,
    KRarita = 1.3,
    Quantita = 610,
    MetriLineari = 40,
    DataInizio = 13000101,
    DataFine = 17841231,
    DescrizioneEstremi = '1300 - 1784',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione dell''Opera');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Amministrazione dell''Opera';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione dell''Opera'), '02', 'Entrate e uscite dell''Opera');
UPDATE ComplessiDoc SET
    Denominazione = 'Entrate e uscite dell''Opera',
    NoteStoriche = 'Libri di entrata e uscita tenuti dai camarlinghi dell''Opera.',
    Classificazione = 'registri',
    KConservazione = 1.1,
    KPeriodo = 1.5,
    KSupporto = 1.1,
    KRilevanza = 1.3,
    KRarita = 1.2,
    Quantita = 480,
    MetriLineari = 30,
    DataInizio = 13000101,
    DataFine = 17841231,
    DescrizioneEstremi = '1300 - 1784',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Entrate e uscite dell''Opera');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Entrate e uscite dell''Opera';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Amministrazione dell''Opera'), '02', 'Inventari del tesoro');
UPDATE ComplessiDoc SET
    Denominazione = 'Inventari del tesoro',
    NoteStoriche = 'Inventari delle reliquie, degli arredi e degli argenti della cappella, redatti a ogni cambio degli operai.',
    Classificazione = 'registri e quaderni',
    KConservazione = 1.3,
    KPeriodo = 1.6,
    KSupporto = 1.2,
    KRilevanza = 1.8,
    KRarita = 1.7,
    Quantita = 60,
    MetriLineari = 4,
    DataInizio = 13400101,
    DataFine = 17701231,
    DescrizioneEstremi = '1340 - 1770',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Inventari del tesoro');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Inventari del tesoro';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '02', 'Ufficio tecnico erariale di Pistoia');
UPDATE ComplessiDoc SET
    Denominazione = 'Ufficio tecnico erariale di Pistoia',
    NoteStoriche = 'Ufficio periferico del Ministero delle finanze, curava la conservazione e l''aggiornamento del catasto dei terreni e dei fabbricati della provincia. Le sue funzioni passarono nel 2000 all''Agenzia del territorio, che ha versato all''Archivio di Stato la documentazione non più occorrente.',
    Classificazione = 'fogli di mappa e registri',
    KConservazione = 1.0,
    KPeriodo = 1.0,
    KSupporto = 1.0,
    KRilevanza = 1.2,
    KRarita = 1.0,
    Quantita = 1250,
    MetriLineari = 85,
    DataInizio = 19360101,
    DataFine = 19881231,
    DescrizioneEstremi = '1936 - 1988',
    NoteDirezione = 'Fondo in corso di ordinamento: non pubblicare prima della revisione dell''elenco di versamento.',
    Ordinamento = 2,
    Topografico = 'Deposito di Sant''Agostino, campata 3',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Ufficio tecnico erariale di Pistoia');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Ufficio tecnico erariale di Pistoia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Ufficio tecnico erariale di Pistoia'), '02', 'Catasto terreni');
UPDATE ComplessiDoc SET
    Denominazione = 'Catasto terreni',
    NoteStoriche = 'Mappe e registri del nuovo catasto terreni per i comuni della provincia.',
    Classificazione = 'fogli di mappa e registri',
    KConservazione = 1.0,
    KPeriodo = 1.0,
    KSupporto = 1.0,
    KRilevanza = 1.2,
    KRarita = 1.0,
    Quantita = 1180,
    MetriLineari = 80,
    DataInizio = 19360101,
    DataFine = 19881231,
    DescrizioneEstremi = '1936 - 1988',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Catasto terreni');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Catasto terreni';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Catasto terreni'), '02', 'Mappe catastali');
UPDATE ComplessiDoc SET
    Denominazione = 'Mappe catastali',
    NoteStoriche = 'Mappe di impianto del catasto terreni, su fogli in scala 1:2000.',
    Classificazione = 'fogli di mappa',
    KConservazione = 1.1,
    KPeriodo = 1.0,
    KSupporto = 1.0,
    KRilevanza = 1.3,
    KRarita = 1.1,
    Quantita = 600,
    MetriLineari = 30,
    DataInizio = 19360101,
    DataFine = 19601231,
    DescrizioneEstremi = '1936 - 1960',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Mappe catastali');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Mappe catastali';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Catasto terreni'), '02', 'Registri delle partite');
UPDATE ComplessiDoc SET
    Denominazione = 'Registri delle partite',
    NoteStoriche = 'Registri delle partite catastali intestate ai possessori.',
    Classificazione = 'registri',
    KConservazione = 1.0,
    KPeriodo = 1.0,
    KSupporto = 1.0,
    KRilevanza = 1.1,
    KRarita = 1.0,
    Quantita = 560,
    MetriLineari = 48,
    DataInizio = 19400101,
    DataFine = 19881231,
    DescrizioneEstremi = '1940 - 1988',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    Tipologia = '05'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Registri delle partite');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '02' AND Denominazione = 'Registri delle partite';

-- On purpose: this fondo still holds the count of an old inventory (600 pezzi) while its two
-- series, counted again, hold 620, so its "Consistenza" blinks when it is shown.
INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia'), '02', 'Vicariato di Pescia');
UPDATE ComplessiDoc SET
    Denominazione = 'Vicariato di Pescia',
    NoteStoriche = 'Il vicario della Valdinievole, residente a Pescia, esercitava per conto della Repubblica fiorentina e poi del Granducato di Toscana la giurisdizione civile e criminale sulle comunità del vicariato. Il fondo conserva gli atti delle due cancellerie.',
    Classificazione = 'filze e registri',
    KConservazione = 1.3,
    KPeriodo = 1.4,
    KSupporto = 1.1,
    KRilevanza = 1.3,
    KRarita = 1.2,
    Quantita = 600,
    MetriLineari = 52,
    DataInizio = 15290101,
    DataFine = 18381231,
    DescrizioneEstremi = '1529 - 1838',
    NoteDirezione = 'Consistenza del fondo da aggiornare: la revisione delle serie del 2023 ha contato 620 pezzi, contro i 600 dell''inventario del 1958.',
    Ordinamento = 1,
    Topografico = 'Sala 2, scaffali 1-11',
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini')),
    Tipologia = '03'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Vicariato di Pescia');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '02' AND Denominazione = 'Vicariato di Pescia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Vicariato di Pescia'), '02', 'Atti civili del Vicariato');
UPDATE ComplessiDoc SET
    Denominazione = 'Atti civili del Vicariato',
    NoteStoriche = 'Atti delle cause civili trattate davanti al vicario.',
    Classificazione = 'filze',
    KConservazione = 1.3,
    KPeriodo = 1.4,
    KSupporto = 1.1,
    KRilevanza = 1.2,
    KRarita = 1.1,
    Quantita = 380,
    MetriLineari = 30,
    DataInizio = 15290101,
    DataFine = 18381231,
    DescrizioneEstremi = '1529 - 1838',
    Ordinamento = 1,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti civili del Vicariato');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '02' AND Denominazione = 'Atti civili del Vicariato';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Vicariato di Pescia'), '02', 'Atti criminali del Vicariato');
UPDATE ComplessiDoc SET
    Denominazione = 'Atti criminali del Vicariato',
    NoteStoriche = 'Querele, processi e sentenze della cancelleria criminale.',
    Classificazione = 'filze',
    KConservazione = 1.4,
    KPeriodo = 1.4,
    KSupporto = 1.1,
    KRilevanza = 1.4,
    KRarita = 1.2,
    Quantita = 240,
    MetriLineari = 20,
    DataInizio = 15320101,
    DataFine = 18381231,
    DescrizioneEstremi = '1532 - 1838',
    Ordinamento = 2,
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi')),
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini')),
    Tipologia = '04'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti criminali del Vicariato');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '02' AND Denominazione = 'Atti criminali del Vicariato';


-- Strumenti di ricerca

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '03', 'Regesto delle pergamene di Altopascio');
UPDATE Inventari SET
    Denominazione = 'Regesto delle pergamene di Altopascio',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    AnnoInizio = 2018,
    AnnoFine = 2023,
    DescrizioneEstremi = '2018 - 2023',
    Autore = 'Chiara Bertolucci',
    TipoInventario = 'D',
    Note = 'Regesti analitici delle pergamene di Altopascio, con la descrizione dei sigilli pendenti e di quelli staccati conservati a parte.',
    XmlLink = 'regesti/altopascio.xml',
    NoteDirezione = 'Regesti dal 1345 in poi ancora da rivedere.',
    SubTipologia = '04',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '03', 'Inventario dell''Archivio dei notari');
UPDATE Inventari SET
    Denominazione = 'Inventario dell''Archivio dei notari',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    AnnoInizio = 1871,
    AnnoFine = 1880,
    DescrizioneEstremi = '1871 - 1880, con aggiunte del secolo XX',
    Autore = 'Archivio di Stato di Lucca',
    TipoInventario = 'M',
    Note = 'Inventario manoscritto per notaio, con l''indicazione dei protocolli, delle filze e degli estremi cronologici; ne è in corso la trascrizione nella banca dati.',
    SubTipologia = '01',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio dei notari');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio dei notari';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '03', 'Inventario dell''Archivio Guinigi');
UPDATE Inventari SET
    Denominazione = 'Inventario dell''Archivio Guinigi',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    AnnoInizio = 1994,
    AnnoFine = 1994,
    DescrizioneEstremi = '1994',
    Autore = 'Archivio di Stato di Lucca',
    TipoInventario = 'T',
    Note = 'Inventario analitico dattiloscritto, con indice dei nomi di persona e di luogo.',
    SubTipologia = '01',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Lucca'), '03', 'Inventario del Regio Archivio di Stato in Lucca');
UPDATE Inventari SET
    Denominazione = 'Inventario del Regio Archivio di Stato in Lucca',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di Palazzo Guidiccioni')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Anna')),
    AnnoInizio = 1872,
    AnnoFine = 1888,
    DescrizioneEstremi = '1872 - 1888',
    Autore = 'Salvatore Bongi',
    TipoInventario = 'S',
    Note = 'Guida generale ai fondi dell''Archivio, descritti per magistrature ed enti con notizie storiche su ciascuno.',
    SubTipologia = '05',
    Edizione = 'Lucca 1872-1888, 4 volumi'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Regio Archivio di Stato in Lucca');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '03' AND Denominazione = 'Inventario del Regio Archivio di Stato in Lucca';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '03', 'Inventario dell''Opera di San Jacopo');
UPDATE Inventari SET
    Denominazione = 'Inventario dell''Opera di San Jacopo',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    AnnoInizio = 2001,
    AnnoFine = 2002,
    DescrizioneEstremi = '2001 - 2002',
    Autore = 'Archivio di Stato di Pistoia',
    TipoInventario = 'T',
    Note = 'Inventario analitico delle deliberazioni, dell''amministrazione e delle pergamene dell''Opera.',
    SubTipologia = '01',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Opera di San Jacopo');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Opera di San Jacopo';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '03', 'Elenco di versamento dell''Ufficio tecnico erariale');
UPDATE Inventari SET
    Denominazione = 'Elenco di versamento dell''Ufficio tecnico erariale',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazzetta Scuole Normali')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Sant''Agostino')),
    AnnoInizio = 2024,
    AnnoFine = 2024,
    DescrizioneEstremi = '2024',
    Autore = 'Agenzia delle Entrate, Ufficio provinciale di Pistoia - Territorio',
    TipoInventario = 'T',
    Note = 'Elenco redatto dall''ufficio versante e verificato all''atto della consegna.',
    NoteDirezione = 'Da rivedere dopo l''ordinamento del fondo.',
    SubTipologia = '06',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Elenco di versamento dell''Ufficio tecnico erariale');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '03' AND Denominazione = 'Elenco di versamento dell''Ufficio tecnico erariale';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sezione di Archivio di Stato di Pescia'), '03', 'Inventario del Vicariato di Pescia');
UPDATE Inventari SET
    Denominazione = 'Inventario del Vicariato di Pescia',
    Tipologia = '01',
    ID_IstitutoSede = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Sede di piazza Mazzini')),
    ID_IstitutoMag = (SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Deposito di Collodi')),
    AnnoInizio = 1912,
    AnnoFine = 1913,
    DescrizioneEstremi = '1912 - 1913',
    Autore = 'Archivio comunale di Pescia',
    TipoInventario = 'M',
    Note = 'Inventario manoscritto redatto quando l''archivio era conservato presso il Comune.',
    SubTipologia = '01',
    TipoInv = '01'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Vicariato di Pescia');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '03' AND Denominazione = 'Inventario del Vicariato di Pescia';


-- Collegamenti tra complessi e strumenti di ricerca
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Pergamene di Altopascio'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio dei notari'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio Guinigi'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio Guinigi'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Diplomatico'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Regio Archivio di Stato in Lucca'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Archivio dei notari'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Regio Archivio di Stato in Lucca'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Opera di San Jacopo'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Ufficio tecnico erariale di Pistoia'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Elenco di versamento dell''Ufficio tecnico erariale'), '');
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Vicariato di Pescia'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Vicariato di Pescia'), '');

-- Inventari analitici: serie (01), buste (04), unità archivistiche (05) e documentarie (06)

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio dei notari'), '07', 'Protocolli dei notai del Trecento');
UPDATE DatiInventariali SET
    Titolo = 'Protocolli dei notai del Trecento',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Protocolli di imbreviature dei notai lucchesi del secolo XIV, descritti per notaio.',
    DescrizioneEstremi = '1352 - 1399',
    DataInizio = 13520104,
    DataFine = 13991230,
    Classificazione = 'protocolli 186',
    Ordinamento = '1',
    Acquisizione = 'Pervenuti con l''archivio pubblico dei notari.',
    CriteriOrdinamento = 'Ordine alfabetico dei notai e, per ciascuno, cronologico.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XIV'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Trecento');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Trecento';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Trecento'), '07', 'Protocollo di ser Iacopo di Puccino (1352-1360)');
UPDATE DatiInventariali SET
    Titolo = 'Protocollo di ser Iacopo di Puccino (1352-1360)',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'registro legato in pergamena',
    DescrizioneTestuale = 'Imbreviature di compravendite, locazioni e doti rogate in Lucca e nelle Sei Miglia.',
    DescrizioneEstremi = '1352 gennaio 4 - 1360 dicembre 23',
    DataInizio = 13520104,
    DataFine = 13601223,
    Classificazione = 'cc. 184',
    Note = 'Alle cc. 180-184 indice coevo dei contraenti.',
    CoseNotevoli = 'doti; compravendite; Sei Miglia',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocollo di ser Iacopo di Puccino (1352-1360)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Protocollo di ser Iacopo di Puccino (1352-1360)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Trecento'), '07', 'Protocollo di ser Iacopo di Puccino (1361-1368)');
UPDATE DatiInventariali SET
    Titolo = 'Protocollo di ser Iacopo di Puccino (1361-1368)',
    Tipologia = '05',
    Numero = '2',
    Descrizione = 'registro legato in pergamena',
    DescrizioneTestuale = 'Imbreviature di contratti agrari e di mutui; in fine alcuni testamenti.',
    DescrizioneEstremi = '1361 gennaio 7 - 1368 dicembre 29',
    DataInizio = 13610107,
    DataFine = 13681229,
    Classificazione = 'cc. 206',
    CoseNotevoli = 'mutui; contratti agrari',
    Ordinamento = '2',
    NoteGestionali = 'Legatura allentata: consultare con cautela.',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocollo di ser Iacopo di Puccino (1361-1368)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Protocollo di ser Iacopo di Puccino (1361-1368)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio dei notari'), '07', 'Protocolli dei notai del Quattrocento');
UPDATE DatiInventariali SET
    Titolo = 'Protocolli dei notai del Quattrocento',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Protocolli e filze dei notai lucchesi del secolo XV.',
    DescrizioneEstremi = '1401 - 1499',
    DataInizio = 14010110,
    DataFine = 14991221,
    Classificazione = 'protocolli 243',
    Ordinamento = '2',
    Acquisizione = 'Pervenuti con l''archivio pubblico dei notari.',
    CriteriOrdinamento = 'Ordine alfabetico dei notai e, per ciascuno, cronologico.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Notai del secolo XV'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Quattrocento');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Quattrocento';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Quattrocento'), '07', 'Busta 15 - Protocolli sciolti di ser Domenico Lupardi');
UPDATE DatiInventariali SET
    Titolo = 'Busta 15 - Protocolli sciolti di ser Domenico Lupardi',
    Tipologia = '04',
    Numero = '15',
    Descrizione = 'busta',
    DescrizioneTestuale = 'Busta che riunisce i quaderni sciolti di imbreviature del notaio Domenico Lupardi.',
    DescrizioneEstremi = '1441 marzo 2 - 1450 dicembre 19',
    DataInizio = 14410302,
    DataFine = 14501219,
    Classificazione = 'fascicoli 6',
    Ordinamento = '1',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Latino',
    Conservazione = 'Discreto; tracce di umidità nei primi due fascicoli.',
    FlgUnitaCond = 1
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Busta 15 - Protocolli sciolti di ser Domenico Lupardi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Busta 15 - Protocolli sciolti di ser Domenico Lupardi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Protocolli dei notai del Quattrocento'), '07', 'Testamenti rogati da ser Domenico Lupardi (1441-1450)');
UPDATE DatiInventariali SET
    Titolo = 'Testamenti rogati da ser Domenico Lupardi (1441-1450)',
    Tipologia = '05',
    Numero = '16',
    Descrizione = 'registro cartaceo con coperta in cartone',
    DescrizioneTestuale = 'Testamenti e codicilli di cittadini lucchesi, con legati a favore di enti ecclesiastici e ospedali.',
    DescrizioneEstremi = '1441 maggio 15 - 1450 novembre 4',
    DataInizio = 14410515,
    DataFine = 14501104,
    Classificazione = 'cc. 98',
    CoseNotevoli = 'testamenti; legati pii; ospedali',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Testamenti rogati da ser Domenico Lupardi (1441-1450)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Testamenti rogati da ser Domenico Lupardi (1441-1450)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio Guinigi'), '07', 'Lettere e carteggi della famiglia Guinigi');
UPDATE DatiInventariali SET
    Titolo = 'Lettere e carteggi della famiglia Guinigi',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Lettere ricevute dai Guinigi da parenti, soci e corrispondenti, con alcune minute.',
    DescrizioneEstremi = '1379 - 1430',
    DataInizio = 13790312,
    DataFine = 14300802,
    Classificazione = 'filze 12',
    Ordinamento = '1',
    CriteriOrdinamento = 'Ordine cronologico all''interno di ciascun corrispondente.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Volgare toscano; latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Carteggio Guinigi'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Lettere e carteggi della famiglia Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Lettere e carteggi della famiglia Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Lettere e carteggi della famiglia Guinigi'), '07', 'Lettere di Paolo Guinigi');
UPDATE DatiInventariali SET
    Titolo = 'Lettere di Paolo Guinigi',
    Tipologia = '05',
    Numero = '3',
    Descrizione = 'filza',
    DescrizioneTestuale = 'Lettere di Paolo Guinigi, signore di Lucca, ai familiari e agli ufficiali dello Stato, con istruzioni sul governo del contado e sugli affari della compagnia.',
    DescrizioneEstremi = '1400 settembre 15 - 1430 agosto 2',
    DataInizio = 14000915,
    DataFine = 14300802,
    Classificazione = 'lettere 212',
    CoseNotevoli = 'signoria; governo del contado',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Lettere di Paolo Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Lettere di Paolo Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Lettere e carteggi della famiglia Guinigi'), '07', 'Lettere da Bruges alla compagnia Guinigi');
UPDATE DatiInventariali SET
    Titolo = 'Lettere da Bruges alla compagnia Guinigi',
    Tipologia = '05',
    Numero = '5',
    Descrizione = 'filza',
    DescrizioneTestuale = 'Lettere dei fattori della compagnia a Bruges sui prezzi della seta, sui cambi e sulle spedizioni via mare.',
    DescrizioneEstremi = '1379 marzo 12 - 1412 novembre 30',
    DataInizio = 13790312,
    DataFine = 14121130,
    Classificazione = 'lettere 87',
    CoseNotevoli = 'seta; cambi; Fiandre',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Lettere da Bruges alla compagnia Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Lettere da Bruges alla compagnia Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Archivio Guinigi'), '07', 'Libri di commercio della compagnia Guinigi');
UPDATE DatiInventariali SET
    Titolo = 'Libri di commercio della compagnia Guinigi',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Libri contabili della compagnia mercantile dei Guinigi.',
    DescrizioneEstremi = '1371 - 1395',
    DataInizio = 13710301,
    DataFine = 13951231,
    Classificazione = 'registri 9',
    Ordinamento = '2',
    CriteriOrdinamento = 'Secondo le lettere dell''alfabeto con cui i libri furono segnati dalla compagnia.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Volgare toscano',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Libri di entrata e uscita'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libri di commercio della compagnia Guinigi');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Libri di commercio della compagnia Guinigi';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libri di commercio della compagnia Guinigi'), '07', 'Libro grande segnato A');
UPDATE DatiInventariali SET
    Titolo = 'Libro grande segnato A',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'registro legato in cuoio',
    DescrizioneTestuale = 'Libro dei conti dei soci, dei debitori e dei creditori della compagnia.',
    DescrizioneEstremi = '1371 marzo 1 - 1382 febbraio 28',
    DataInizio = 13710301,
    DataFine = 13820228,
    Classificazione = 'cc. 312',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libro grande segnato A');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Libro grande segnato A';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libri di commercio della compagnia Guinigi'), '07', 'Libro dei debitori e creditori segnato B');
UPDATE DatiInventariali SET
    Titolo = 'Libro dei debitori e creditori segnato B',
    Tipologia = '05',
    Numero = '2',
    Descrizione = 'registro legato in cuoio',
    DescrizioneTestuale = 'Conti dei debitori e dei creditori della compagnia, con rimandi al libro segnato A.',
    DescrizioneEstremi = '1383 marzo 1 - 1395 dicembre 31',
    DataInizio = 13830301,
    DataFine = 13951231,
    Classificazione = 'cc. 280',
    Note = 'Restaurato nel 2012.',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libro dei debitori e creditori segnato B');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-12 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '07' AND Denominazione = 'Libro dei debitori e creditori segnato B';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Opera di San Jacopo'), '07', 'Deliberazioni degli operai di San Jacopo');
UPDATE DatiInventariali SET
    Titolo = 'Deliberazioni degli operai di San Jacopo',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Registri dei partiti degli operai dell''Opera.',
    DescrizioneEstremi = '1379 - 1431',
    DataInizio = 13790105,
    DataFine = 14311220,
    Classificazione = 'registri 2',
    Ordinamento = '1',
    CriteriOrdinamento = 'Cronologico.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Deliberazioni degli operai'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Deliberazioni degli operai di San Jacopo');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Deliberazioni degli operai di San Jacopo';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Deliberazioni degli operai di San Jacopo'), '07', 'Libro dei partiti degli operai (1379-1402)');
UPDATE DatiInventariali SET
    Titolo = 'Libro dei partiti degli operai (1379-1402)',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'registro legato in pergamena',
    DescrizioneTestuale = 'Deliberazioni sulla custodia del tesoro, sugli stanziamenti per l''altare d''argento e sulla festa del 25 luglio.',
    DescrizioneEstremi = '1379 gennaio 5 - 1402 dicembre 28',
    DataInizio = 13790105,
    DataFine = 14021228,
    Classificazione = 'cc. 196',
    CoseNotevoli = 'altare d''argento; festa di San Jacopo',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libro dei partiti degli operai (1379-1402)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Libro dei partiti degli operai (1379-1402)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Deliberazioni degli operai di San Jacopo'), '07', 'Libro dei partiti degli operai (1403-1431)');
UPDATE DatiInventariali SET
    Titolo = 'Libro dei partiti degli operai (1403-1431)',
    Tipologia = '05',
    Numero = '2',
    Descrizione = 'registro legato in pergamena',
    DescrizioneTestuale = 'Deliberazioni degli operai e nomine dei camarlinghi.',
    DescrizioneEstremi = '1403 gennaio 10 - 1431 dicembre 20',
    DataInizio = 14030110,
    DataFine = 14311220,
    Classificazione = 'cc. 224',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Libro dei partiti degli operai (1403-1431)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Libro dei partiti degli operai (1403-1431)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario dell''Opera di San Jacopo'), '07', 'Pergamene dell''Opera di San Jacopo');
UPDATE DatiInventariali SET
    Titolo = 'Pergamene dell''Opera di San Jacopo',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Pergamene sciolte dell''Opera: deliberazioni del Comune, inventari e atti di donazione.',
    DescrizioneEstremi = '1287 - 1340',
    DataInizio = 12870702,
    DataFine = 13401115,
    Classificazione = 'pergamene 2',
    Ordinamento = '2',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Latino',
    Conservazione = 'Buono; pergamene spianate e condizionate in cartelle',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Opera di San Jacopo'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Pergamene dell''Opera di San Jacopo');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Pergamene dell''Opera di San Jacopo';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Pergamene dell''Opera di San Jacopo'), '07', 'Inventario delle reliquie e degli arredi della cappella (1340)');
UPDATE DatiInventariali SET
    Titolo = 'Inventario delle reliquie e degli arredi della cappella (1340)',
    Tipologia = '06',
    Numero = '2',
    Descrizione = 'pergamena in cartella',
    DescrizioneTestuale = 'Inventario delle reliquie, dei calici, dei paramenti e degli argenti della cappella di San Jacopo consegnati ai nuovi operai.',
    DescrizioneEstremi = '1340 novembre 15',
    DataInizio = 13401115,
    DataFine = 13401115,
    Classificazione = 'c. 1',
    CoseNotevoli = 'reliquie; argenti; paramenti',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Inventario delle reliquie e degli arredi della cappella (1340)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Inventario delle reliquie e degli arredi della cappella (1340)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Elenco di versamento dell''Ufficio tecnico erariale'), '07', 'Catasto terreni del comune censuario di Pistoia');
UPDATE DatiInventariali SET
    Titolo = 'Catasto terreni del comune censuario di Pistoia',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Mappe e registri del catasto terreni del comune censuario di Pistoia.',
    DescrizioneEstremi = '1936 - 1988',
    DataInizio = 19360101,
    DataFine = 19881231,
    Classificazione = 'fogli 148; registri 12',
    Ordinamento = '1',
    Acquisizione = 'Versamento dell''Agenzia delle Entrate del 15 marzo 2024.',
    Accesso = 'Consultabile previa autorizzazione della direzione',
    Riproduzione = 'Su richiesta',
    Lingua = 'Italiano',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Catasto terreni'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Catasto terreni del comune censuario di Pistoia');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Catasto terreni del comune censuario di Pistoia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Catasto terreni del comune censuario di Pistoia'), '07', 'Mappe di impianto, fogli 1-74');
UPDATE DatiInventariali SET
    Titolo = 'Mappe di impianto, fogli 1-74',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'cartella',
    DescrizioneTestuale = 'Fogli di mappa di impianto in scala 1:2000, con aggiornamenti a matita rossa.',
    DescrizioneEstremi = '1936 aprile 15 - 1952 giugno 30',
    DataInizio = 19360415,
    DataFine = 19520630,
    Classificazione = 'fogli 74',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Mappe di impianto, fogli 1-74');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Mappe di impianto, fogli 1-74';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Catasto terreni del comune censuario di Pistoia'), '07', 'Registri delle partite, volumi 1-12');
UPDATE DatiInventariali SET
    Titolo = 'Registri delle partite, volumi 1-12',
    Tipologia = '05',
    Numero = '2',
    Descrizione = 'registri rilegati',
    DescrizioneTestuale = 'Registri delle partite catastali in ordine di numero di partita.',
    DescrizioneEstremi = '1940 gennaio 1 - 1988 dicembre 31',
    DataInizio = 19400101,
    DataFine = 19881231,
    Classificazione = 'registri 12',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Registri delle partite, volumi 1-12');
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '07' AND Denominazione = 'Registri delle partite, volumi 1-12';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Vicariato di Pescia'), '07', 'Atti criminali del Vicariato di Pescia');
UPDATE DatiInventariali SET
    Titolo = 'Atti criminali del Vicariato di Pescia',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Filze di querele, processi e sentenze della cancelleria criminale del vicario.',
    DescrizioneEstremi = '1590 - 1599',
    DataInizio = 15900108,
    DataFine = 15991222,
    Classificazione = 'filze 2',
    Ordinamento = '1',
    CriteriOrdinamento = 'Cronologico.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Italiano; latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti criminali del Vicariato'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Atti criminali del Vicariato di Pescia');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '07' AND Denominazione = 'Atti criminali del Vicariato di Pescia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Atti criminali del Vicariato di Pescia'), '07', 'Processi criminali (1590-1594)');
UPDATE DatiInventariali SET
    Titolo = 'Processi criminali (1590-1594)',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'filza',
    DescrizioneTestuale = 'Processi per furti, risse, porto d''armi e danni dati nelle comunità della Valdinievole.',
    DescrizioneEstremi = '1590 gennaio 8 - 1594 dicembre 19',
    DataInizio = 15900108,
    DataFine = 15941219,
    Classificazione = 'cc. 412',
    CoseNotevoli = 'furti di bestiame; porto d''armi',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Processi criminali (1590-1594)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '07' AND Denominazione = 'Processi criminali (1590-1594)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Atti criminali del Vicariato di Pescia'), '07', 'Processi criminali (1595-1599)');
UPDATE DatiInventariali SET
    Titolo = 'Processi criminali (1595-1599)',
    Tipologia = '05',
    Numero = '2',
    Descrizione = 'filza',
    DescrizioneTestuale = 'Processi e sentenze criminali; in fine il libro delle condanne pecuniarie.',
    DescrizioneEstremi = '1595 gennaio 10 - 1599 dicembre 22',
    DataInizio = 15950110,
    DataFine = 15991222,
    Classificazione = 'cc. 388',
    Ordinamento = '2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Processi criminali (1595-1599)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '07' AND Denominazione = 'Processi criminali (1595-1599)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Inventario del Vicariato di Pescia'), '07', 'Atti civili del Vicariato di Pescia');
UPDATE DatiInventariali SET
    Titolo = 'Atti civili del Vicariato di Pescia',
    Tipologia = '01',
    Numero = '',
    DescrizioneTestuale = 'Atti delle cause civili trattate davanti al vicario.',
    DescrizioneEstremi = '1601 - 1605',
    DataInizio = 16010109,
    DataFine = 16051220,
    Classificazione = 'filze 1',
    Ordinamento = '2',
    CriteriOrdinamento = 'Cronologico.',
    Accesso = 'Liberamente consultabile',
    Riproduzione = 'Consentita con mezzi propri, senza flash',
    Lingua = 'Italiano; latino',
    Conservazione = 'Buono',
    Id_ElemComplDoc = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '02' AND Denominazione = 'Atti civili del Vicariato'),
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Atti civili del Vicariato di Pescia');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '07' AND Denominazione = 'Atti civili del Vicariato di Pescia';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Atti civili del Vicariato di Pescia'), '07', 'Cause civili (1601-1605)');
UPDATE DatiInventariali SET
    Titolo = 'Cause civili (1601-1605)',
    Tipologia = '05',
    Numero = '1',
    Descrizione = 'filza',
    DescrizioneTestuale = 'Cause per debiti, confini e doti tra abitanti di Pescia, Uzzano e Buggiano.',
    DescrizioneEstremi = '1601 gennaio 9 - 1605 dicembre 20',
    DataInizio = 16010109,
    DataFine = 16051220,
    Classificazione = 'cc. 356',
    CoseNotevoli = 'doti; confini; debiti',
    Ordinamento = '1',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Cause civili (1601-1605)');
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Tipologia = '07' AND Denominazione = 'Cause civili (1601-1605)';


-- Pergamene e sigilli

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '05', 'Altopascio, 1098 marzo 5');
UPDATE Pergamene SET
    Segnatura = 'Altopascio, 1098 marzo 5',
    DataCronicaInizio = 10980305,
    DataTopica = 'Lucca',
    Datazio = 'Anno ab incarnatione Domini nostri Iesu Christi millesimo nonagesimo octavo, tertio nonas martii, indictione sexta.',
    Regesto = 'Rolando del fu Ghisolfo dona allo Spedale di San Jacopo di Altopascio, nella persona del rettore Gualando, un pezzo di terra con vigna posto a Pozzeveri, presso il lago di Sesto.',
    SigilliAttuali = 0,
    SigilliOriginari = 0,
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola carolina',
    Bibliografia = 'Regesto inedito.',
    NoteRiproduzione = 'Fotografia digitale a colori, 400 dpi (2019)',
    DescrizioneEstremi = '1098 marzo 5',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Buono; lievi macchie di umidità sul margine inferiore',
    Dimensioni = 'mm 385 x 240',
    Note = 'Piegature orizzontali originali.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5'));
UPDATE PGTraditio SET Traditio = '01'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5'));
UPDATE PGEleGrafici SET
    NoteGrafiche = 'Signum tabellionis del notaio rogatario; sottoscrizioni autografe dei testimoni.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5'));
UPDATE PGNoteStoriche SET
    NoteStoriche = 'Sul verso regesto di mano del secolo XIV e antica segnatura.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1098 marzo 5';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '05', 'Altopascio, 1143 gennaio 12');
UPDATE Pergamene SET
    Segnatura = 'Altopascio, 1143 gennaio 12',
    DataCronicaInizio = 11430112,
    DataTopica = 'Altopascio',
    Datazio = 'Anno ab incarnatione Domini millesimo centesimo quadragesimo tertio, pridie idus ianuarii, indictione sexta.',
    Regesto = 'Ildebrando del fu Benedetto e sua moglie Berta vendono a Ubaldo, rettore dello Spedale di Altopascio, per venti soldi di denari lucchesi, due pezzi di terra posti a Pozzeveri.',
    SigilliAttuali = 0,
    SigilliOriginari = 0,
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola carolina',
    NoteRiproduzione = 'Fotografia digitale a colori, 400 dpi (2019)',
    DescrizioneEstremi = '1143 gennaio 12',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Discreto; rosicature lungo il margine destro',
    Dimensioni = 'mm 290 x 175'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12'));
UPDATE PGTraditio SET Traditio = '01'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12'));
UPDATE PGEleGrafici SET NoteGrafiche = 'Signum tabellionis del notaio Guido.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12'));
UPDATE PGNoteStoriche SET
    NoteStoriche = 'Documento rogato nella chiesa dello Spedale alla presenza di frati e conversi.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1143 gennaio 12';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '05', 'Altopascio, 1228 novembre 20');
UPDATE Pergamene SET
    Segnatura = 'Altopascio, 1228 novembre 20',
    DataCronicaInizio = 12281120,
    DataTopica = 'Perugia',
    Datazio = 'Datum Perusii, XII kalendas decembris, pontificatus nostri anno secundo.',
    Regesto = 'Gregorio IX prende sotto la protezione della Sede apostolica lo Spedale di San Jacopo di Altopascio con tutti i suoi beni e ne conferma i privilegi concessi dai predecessori.',
    Miniatura = 'Prima riga in lettere allungate; iniziale G ornata a penna.',
    SigilliAttuali = 1,
    SigilliOriginari = 1,
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola cancelleresca',
    Bibliografia = 'Citata nei repertori dei privilegi pontifici per gli ospedali toscani.',
    NoteRiproduzione = 'Fotografia digitale a colori, 600 dpi (2021), recto, verso e bolla',
    DescrizioneEstremi = '1228 novembre 20',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Ottimo',
    Dimensioni = 'mm 560 x 470',
    Note = 'Plica di mm 35 con fori per i cordoni della bolla.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20'));
UPDATE PGTraditio SET Traditio = '01'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20'));
UPDATE PGEleGrafici SET
    NoteGrafiche = 'Rota e Bene Valete; sottoscrizioni del pontefice e dei cardinali.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20'));
UPDATE PGNoteStoriche SET
    NoteStoriche = 'Il privilegio fu esibito più volte nelle liti dello Spedale con il vescovo di Lucca; se ne conserva una copia autentica del 1301.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '05', 'Altopascio, 1228 novembre 20 (copia)');
UPDATE Pergamene SET
    Segnatura = 'Altopascio, 1228 novembre 20 (copia)',
    DataCronicaInizio = 12281120,
    DataTopica = 'Perugia',
    Datazio = 'Datum Perusii, XII kalendas decembris, pontificatus nostri anno secundo.',
    Regesto = 'Copia autentica del privilegio di Gregorio IX per lo Spedale di San Jacopo di Altopascio, eseguita dal notaio Bonagiunta di Orlando su richiesta del maestro dello Spedale.',
    SigilliAttuali = 0,
    SigilliOriginari = 0,
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola notarile',
    DescrizioneEstremi = '1228 novembre 20, in copia del 1301 aprile 3',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Buono',
    Dimensioni = 'mm 410 x 300'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)'));
UPDATE PGTraditio SET
    Traditio = '02',
    Rogatario = 'Copia autenticata dal notaio Bonagiunta di Orlando alla presenza del vicario del vescovo di Lucca.',
    DataCopiaTesto = '1301 aprile 3',
    ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20')
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)'));
UPDATE PGEleGrafici SET
    NoteGrafiche = 'Signum tabellionis e sottoscrizioni dei notai autenticatori.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)'));
UPDATE PGNoteStoriche SET NoteStoriche = 'Copia fatta per essere prodotta in giudizio.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)'));
UPDATE Elementi SET
    Pubblicato = 'N',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20 (copia)';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '05', 'Altopascio, 1345 settembre 8');
UPDATE Pergamene SET
    Segnatura = 'Altopascio, 1345 settembre 8',
    DataCronicaInizio = 13450908,
    DataTopica = 'Altopascio, nel capitolo dello Spedale',
    Datazio = 'Anno Domini millesimo trecentesimo quadragesimo quinto, indictione tertiadecima, die octava mensis septembris.',
    Regesto = 'Frate Ugolino, maestro dello Spedale di Altopascio, con il consenso del capitolo dei frati, concede in locazione per cinque anni a Puccino di Lemmo da Capannori un podere con casa posto a Capannori, per il canone annuo di dodici staia di grano.',
    SigilliAttuali = 1,
    SigilliOriginari = 2,
    Annuncio = 'In cuius rei testimonium sigilla hospitalis et capituli apponi fecimus.',
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola notarile',
    DescrizioneEstremi = '1345 settembre 8',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Buono; il secondo sigillo è staccato e conservato a parte',
    Dimensioni = 'mm 340 x 260'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'));
UPDATE PGTraditio SET Traditio = '01'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'));
UPDATE PGEleGrafici SET
    NoteGrafiche = 'Signum tabellionis; due tagli nella plica per i sigilli pendenti.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'));
UPDATE PGNoteStoriche SET
    NoteStoriche = 'Il sigillo del capitolo, staccatosi, è descritto a parte tra i sigilli staccati.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1228 novembre 20'), '06', 'Bolla plumbea di Gregorio IX');
UPDATE Sigilli SET
    Identificativo = 'Bolla plumbea di Gregorio IX',
    Tipologia = '04',
    DataInizio = 12270101,
    DataFine = 12411231,
    Dimensioni = 'diametro mm 38',
    MateriaNuovo = '03',
    Colore = 'Grigio piombo',
    Apposizione = 'Pendente a cordoni di seta',
    Rapporto = '02',
    Posizione = 'Al centro della plica',
    Attacchi = 'Cordoni di seta gialla e rossa passanti per due fori della plica',
    Protezione = 'Sacchetto di tela moderno',
    Qualita = 'Impressione nitida',
    Conservazione = 'Buono; lieve ossidazione superficiale',
    Autenticita = 'Autentico',
    AltreImpronteTitolare = 'Altre bolle di Gregorio IX nel Diplomatico di Lucca.',
    Note = 'Bolla della cancelleria pontificia, appesa al privilegio originale.',
    DescrizioneEstremi = '1227 - 1241',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Bolla plumbea di Gregorio IX');
UPDATE SGTipo SET
    FormaR = 'Rotonda',
    DimensioniR = 'diametro mm 38',
    TrascrizioneR = 'SPA SPE',
    LinguaR = 'Latino; capitale',
    DescrizioneR = 'Teste affrontate degli apostoli Paolo, a sinistra, e Pietro, a destra, separate da una croce, entro cerchio perlinato.',
    TrascrizioneV = 'GREGORIVS PP VIIII',
    LinguaV = 'Latino; capitale',
    DescrizioneV = 'Nome del pontefice su tre righe entro cerchio perlinato.',
    TipologiaR = 'Sigillo pontificio',
    Incisore = 'Tipario della cancelleria pontificia.',
    FormaV = 'Rotonda',
    DimensioniV = 'diametro mm 38',
    TipologiaV = 'Sigillo pontificio',
    TipologIcoR = '02',
    TipologIcoV = '10'
  WHERE ID_Sigillo = (SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Bolla plumbea di Gregorio IX'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '06' AND Denominazione = 'Bolla plumbea di Gregorio IX';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'), '06', 'Sigillo dello Spedale di Altopascio');
UPDATE Sigilli SET
    Identificativo = 'Sigillo dello Spedale di Altopascio',
    Tipologia = '01',
    DataInizio = 13000101,
    DataFine = 13991231,
    Dimensioni = 'mm 62 x 40',
    MateriaNuovo = '01',
    Colore = 'Cera naturale bruna',
    Apposizione = 'Pendente a filo di canapa',
    Rapporto = '02',
    Posizione = 'Pendente a sinistra della plica',
    Attacchi = 'Filo di canapa passante per un taglio della plica',
    Qualita = 'Impressione poco profonda',
    Conservazione = 'Mediocre; lacuna nella parte superiore con perdita di parte della legenda',
    Autenticita = 'Autentico',
    DescrizioneEstremi = 'sec. XIV',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo dello Spedale di Altopascio');
UPDATE SGTipo SET
    FormaR = 'Ogivale',
    DimensioniR = 'mm 65 x 42',
    TrascrizioneR = '+ S(IGILLUM) HOSPITALIS S(ANCTI) IACOBI DE ALTOPASSU',
    LinguaR = 'Latino; capitale gotica',
    DescrizioneR = 'San Giacomo stante con bordone e libro; ai lati la lettera Tau.',
    TipologiaR = 'Sigillo di ordine religioso',
    FormaV = '',
    TipologIcoR = '02'
  WHERE ID_Sigillo = (SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo dello Spedale di Altopascio'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '06' AND Denominazione = 'Sigillo dello Spedale di Altopascio';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '03' AND Denominazione = 'Regesto delle pergamene di Altopascio'), '06', 'Sigillo del capitolo di Altopascio');
UPDATE Sigilli SET
    Identificativo = 'Sigillo del capitolo di Altopascio',
    Tipologia = '01',
    DataInizio = 13000101,
    DataFine = 13991231,
    Dimensioni = 'diametro mm 45',
    MateriaNuovo = '01',
    Colore = 'Cera rossa',
    Apposizione = 'Pendente a filo di canapa',
    Rapporto = '01',
    Posizione = 'Staccato',
    Qualita = 'Impressione nitida',
    Conservazione = 'Buono; frammento di filo di canapa ancora inserito',
    RifDocNoInv = 'Già pendente dalla pergamena Altopascio, 1345 settembre 8, a destra della plica.',
    DescrizioneEstremi = 'sec. XIV',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo del capitolo di Altopascio');
UPDATE SGTipo SET
    FormaR = 'Rotonda',
    DimensioniR = 'diametro mm 46',
    TrascrizioneR = '+ S(IGILLUM) CAPITULI FRATRUM DE ALTOPASSU',
    LinguaR = 'Latino; capitale gotica',
    DescrizioneR = 'Tau entro scudo sormontato da una conchiglia.',
    TipologiaR = 'Sigillo di ordine religioso',
    FormaV = '',
    TipologIcoR = '09'
  WHERE ID_Sigillo = (SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo del capitolo di Altopascio'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-03-04 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Tipologia = '06' AND Denominazione = 'Sigillo del capitolo di Altopascio';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '07' AND Denominazione = 'Pergamene dell''Opera di San Jacopo'), '05', 'Opera di San Jacopo, 1287 luglio 2');
UPDATE Pergamene SET
    Segnatura = 'Opera di San Jacopo, 1287 luglio 2',
    DataCronicaInizio = 12870702,
    DataTopica = 'Pistoia, nel palazzo del Comune',
    Datazio = 'Anno Domini millesimo ducentesimo octuagesimo septimo, indictione quintadecima, die secundo iulii.',
    Regesto = 'Il Consiglio del popolo del Comune di Pistoia delibera che le offerte della festa di San Jacopo siano amministrate dagli operai dell''Opera e destinate all''ornamento della cappella del santo.',
    SigilliAttuali = 1,
    SigilliOriginari = 1,
    Accesso = 'Consultabile in riproduzione digitale; originale su autorizzazione',
    Riproduzione = 'Consentita per motivi di studio',
    Lingua = 'Latino; minuscola notarile',
    DescrizioneEstremi = '1287 luglio 2',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2');
UPDATE PGSupporti SET
    Supporto = 'Pergamena',
    StatoConservazione = 'Buono',
    Dimensioni = 'mm 470 x 330'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2'));
UPDATE PGTraditio SET Traditio = '01'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2'));
UPDATE PGEleGrafici SET
    NoteGrafiche = 'Signum tabellionis del notaio delle riformagioni.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2'));
UPDATE PGNoteStoriche SET
    NoteStoriche = 'Conservata in origine nella cassa della cappella.'
  WHERE ID_Pergamena = (SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2';

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Opera di San Jacopo, 1287 luglio 2'), '06', 'Sigillo del Comune di Pistoia');
UPDATE Sigilli SET
    Identificativo = 'Sigillo del Comune di Pistoia',
    Tipologia = '01',
    DataInizio = 12000101,
    DataFine = 12991231,
    Dimensioni = 'diametro mm 55',
    MateriaNuovo = '01',
    Colore = 'Cera naturale',
    Apposizione = 'Pendente a cordoni di seta',
    Rapporto = '02',
    Posizione = 'Al centro della plica',
    Attacchi = 'Cordoni di seta rossa e bianca',
    Qualita = 'Impressione buona',
    Conservazione = 'Discreto; margine scheggiato',
    DescrizioneEstremi = 'sec. XIII',
    FlgUnitaCond = 0
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo del Comune di Pistoia');
UPDATE SGTipo SET
    FormaR = 'Rotonda',
    DimensioniR = 'diametro mm 56',
    TrascrizioneR = '+ SIGILLVM COMVNIS PISTORII',
    LinguaR = 'Latino; capitale',
    DescrizioneR = 'Scudo scaccato entro cerchio perlinato.',
    TipologiaR = 'Sigillo comunale',
    FormaV = '',
    TipologIcoR = '01'
  WHERE ID_Sigillo = (SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo del Comune di Pistoia'));
UPDATE Elementi SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Tipologia = '06' AND Denominazione = 'Sigillo del Comune di Pistoia';


-- Sigillo staccato collegato alla sua pergamena
INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '06' AND Denominazione = 'Sigillo del capitolo di Altopascio'), (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '05' AND Denominazione = 'Altopascio, 1345 settembre 8'), '');

-- Notazioni e altre segnature delle pergamene
INSERT INTO PGNotazioni (ID_Pergamena, Posizione, DescrizioneEstremi, Note)
  SELECT ID_Pergamena, 'Verso, in alto', 'sec. XIV', 'Carta de terra de Puteoveteri' FROM Pergamene WHERE Segnatura = 'Altopascio, 1098 marzo 5';
INSERT INTO PGNotazioni (ID_Pergamena, Posizione, DescrizioneEstremi, Note)
  SELECT ID_Pergamena, 'Verso, al centro', 'sec. XIII', 'Privilegium domini Gregorii pape pro hospitali' FROM Pergamene WHERE Segnatura = 'Altopascio, 1228 novembre 20';
INSERT INTO PGNotazioni (ID_Pergamena, Posizione, DescrizioneEstremi, Note)
  SELECT ID_Pergamena, 'Verso', 'sec. XVIII', 'Locazione del podere di Capannori' FROM Pergamene WHERE Segnatura = 'Altopascio, 1345 settembre 8';
INSERT INTO PGAltreSegnature (ID_Pergamena, Segnatura)
  SELECT ID_Pergamena, 'Antica segnatura A. 12' FROM Pergamene WHERE Segnatura = 'Altopascio, 1098 marzo 5';
INSERT INTO PGAltreSegnature (ID_Pergamena, Segnatura)
  SELECT ID_Pergamena, 'Privilegi, n. 3' FROM Pergamene WHERE Segnatura = 'Altopascio, 1228 novembre 20';
INSERT INTO PGAltreSegnature (ID_Pergamena, Segnatura)
  SELECT ID_Pergamena, 'Cassa della cappella, n. 1' FROM Pergamene WHERE Segnatura = 'Opera di San Jacopo, 1287 luglio 2';

-- Cose notevoli delle unità
INSERT INTO DICoseNotevoli (ID_DatoInventariale, Descrizione)
  SELECT ID_DatoInventariale, 'Lettera del 1394 sul naufragio di una galea carica di seta' FROM DatiInventariali WHERE Titolo = 'Lettere da Bruges alla compagnia Guinigi';
INSERT INTO DICoseNotevoli (ID_DatoInventariale, Descrizione)
  SELECT ID_DatoInventariale, 'Deliberazione per la custodia notturna dell''altare d''argento' FROM DatiInventariali WHERE Titolo = 'Libro dei partiti degli operai (1379-1402)';
INSERT INTO DICoseNotevoli (ID_DatoInventariale, Descrizione)
  SELECT ID_DatoInventariale, 'Processo per furto di bestiame a Uzzano' FROM DatiInventariali WHERE Titolo = 'Processi criminali (1590-1594)';

-- Registro delle nuove acquisizioni: un versamento con le sue righe

INSERT INTO Elementi (ID_ElementoPadre, Tipologia, Denominazione)
  VALUES ((SELECT ID_Elemento FROM Elementi WHERE Tipologia = '01' AND Denominazione = 'Archivio di Stato di Pistoia'), '04', '15/03/2024 - 12');
UPDATE Versamenti SET
    Data = '2024-03-15 00:00:00',
    Note = 'Versamento della documentazione catastale non più occorrente alle attività correnti dell''ufficio, accompagnato da elenco di consistenza.',
    NumeroRPC = 12,
    SogVersatore = 'Agenzia delle Entrate - Ufficio provinciale di Pistoia',
    TipoAcquisizione = '01',
    DataAcquisizione = '2024-03-12 00:00:00',
    NoteDirezione = 'Materiale collocato provvisoriamente nel deposito di Sant''Agostino.'
  WHERE ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '04' AND Denominazione = '15/03/2024 - 12');
INSERT INTO RigheVersamento (Denominazione, Quantita, MetriLineari, Classificazione, DescrizioneEstremi, DataInizio, DataFine, Note, ID_ComplessoDoc, ID_Versamento)
  SELECT 'Catasto terreni - mappe di impianto', 600, 30, 'fogli di mappa in cartelle', '1936 - 1960', 19360101, 19601231, 'Fogli numerati per comune censuario.', C.ID_ComplessoDoc, V.ID_Versamento
  FROM ComplessiDoc C, Versamenti V
  WHERE C.Denominazione = 'Mappe catastali' AND V.ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '04' AND Denominazione = '15/03/2024 - 12');
INSERT INTO RigheVersamento (Denominazione, Quantita, MetriLineari, Classificazione, DescrizioneEstremi, DataInizio, DataFine, Note, ID_ComplessoDoc, ID_Versamento)
  SELECT 'Catasto terreni - registri delle partite', 560, 48, 'registri rilegati', '1940 - 1988', 19400101, 19881231, 'Alcuni registri con legatura danneggiata.', C.ID_ComplessoDoc, V.ID_Versamento
  FROM ComplessiDoc C, Versamenti V
  WHERE C.Denominazione = 'Registri delle partite' AND V.ID_Elemento = (SELECT ID_Elemento FROM Elementi WHERE Tipologia = '04' AND Denominazione = '15/03/2024 - 12');

-- Soggetti produttori: persone (P), famiglie (F), enti (E), con le altre denominazioni

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Guinigi Paolo', 'P');
UPDATE Persone SET
    Nome = 'Guinigi Paolo',
    Titoli = 'Signore di Lucca',
    AreaGeografica = 'Lucca e il suo contado',
    Storia = 'Mercante e uomo politico lucchese, fu signore di Lucca dal 1400 al 1430. Favorì l''arte della seta e fece costruire la villa che oggi ospita il Museo nazionale di Villa Guinigi. Deposto da una congiura nel 1430, fu consegnato ai Visconti e morì prigioniero nel castello di Pavia.',
    Note = 'Archivio di Stato di Lucca, Archivio Guinigi.',
    DataInizio = 13720101,
    DataFine = 14321231,
    DescrizioneEstremi = '1372 - 1432',
    LuogoNascita = 'Lucca',
    LuogoMorte = 'Pavia'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Guinigi Paolo');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-20 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Denominazione = 'Guinigi Paolo';
INSERT INTO PersoneDenominazioni (ID_Persona, AltraDenominazione)
  SELECT ID_Persona, 'Paulus de Guinigiis' FROM Persone WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Guinigi Paolo');

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Bardelli Ugo', 'P');
UPDATE Persone SET
    Nome = 'Bardelli Ugo',
    Titoli = 'Ingegnere capo del catasto',
    DataNascita = 18890317,
    DataMorte = 19650904,
    AreaGeografica = 'Pistoia',
    Storia = 'Ingegnere del catasto, diresse l''Ufficio tecnico erariale di Pistoia nel secondo dopoguerra e curò la revisione delle mappe di impianto danneggiate durante la guerra.',
    DataInizio = 19460101,
    DataFine = 19541231,
    DescrizioneEstremi = 'in servizio a Pistoia 1946 - 1954',
    LuogoNascita = 'Pistoia',
    LuogoMorte = 'Firenze',
    NoteDirezione = 'Scheda da completare con lo stato di servizio.'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Bardelli Ugo');
UPDATE Soggetti SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Denominazione = 'Bardelli Ugo';

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Guinigi', 'F');
UPDATE Famiglie SET
    Nome = 'Guinigi',
    Titoli = 'Patrizi lucchesi',
    DataInizio = 12000101,
    DataFine = 18991231,
    DescrizioneEstremi = 'sec. XIII - sec. XIX',
    AreaGeografica = 'Lucca; Bruges; Parigi; Londra',
    Storia = 'Famiglia di mercanti e banchieri lucchesi, attiva nel commercio della seta con filiali nelle Fiandre, in Francia e in Inghilterra. Raggiunse l''apice con la signoria di Paolo Guinigi e rimase tra le famiglie del patriziato cittadino fino all''Ottocento.'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Guinigi');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-20 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Denominazione = 'Guinigi';
INSERT INTO FamiglieDenominazioni (ID_Famiglia, AltraDenominazione)
  SELECT ID_Famiglia, 'de Guinigiis' FROM Famiglie WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Guinigi');

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Spedale di San Jacopo di Altopascio', 'E');
UPDATE Enti SET
    Denominazione = 'Spedale di San Jacopo di Altopascio',
    AreaGeografica = 'Altopascio e Valdinievole',
    Storia = 'Ospedale per pellegrini sulla via Francigena, retto da una comunità di frati ospedalieri che portavano come insegna il Tau. Ebbe case dipendenti in Italia e oltralpe. L''ordine fu soppresso nel 1587 e i suoi beni passarono all''Ordine di Santo Stefano.',
    DataInizio = 10700101,
    DataFine = 15871231,
    DescrizioneEstremi = 'sec. XI - 1587',
    Sede = 'Altopascio',
    Profilo = '06'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Spedale di San Jacopo di Altopascio');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-20 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Denominazione = 'Spedale di San Jacopo di Altopascio';
INSERT INTO EntiDenominazioni (ID_Ente, AltraDenominazione)
  SELECT ID_Ente, 'Ordine del Tau' FROM Enti WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Spedale di San Jacopo di Altopascio');
INSERT INTO EntiDenominazioni (ID_Ente, AltraDenominazione)
  SELECT ID_Ente, 'Ospedale di Altopascio' FROM Enti WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Spedale di San Jacopo di Altopascio');

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Collegio dei notai di Lucca', 'E');
UPDATE Enti SET
    Denominazione = 'Collegio dei notai di Lucca',
    AreaGeografica = 'Lucca',
    Storia = 'Corporazione dei notai lucchesi: ammetteva i nuovi notai, vigilava sull''esercizio della professione e curava la consegna degli atti dei notai defunti all''archivio pubblico.',
    DataInizio = 12000101,
    DataFine = 18651231,
    DescrizioneEstremi = 'sec. XIII - 1865',
    Sede = 'Lucca',
    Profilo = '10'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Collegio dei notai di Lucca');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2024-02-20 00:00:00',
    Redattore = 'Chiara Bertolucci'
  WHERE Denominazione = 'Collegio dei notai di Lucca';

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Opera di San Jacopo di Pistoia', 'E');
UPDATE Enti SET
    Denominazione = 'Opera di San Jacopo di Pistoia',
    AreaGeografica = 'Pistoia',
    Storia = 'Magistratura comunale che amministrava la cappella di San Jacopo nella cattedrale, le offerte dei fedeli e il tesoro, compreso l''altare d''argento. Soppressa in età leopoldina.',
    DataInizio = 12000101,
    DataFine = 17841231,
    DescrizioneEstremi = 'sec. XIII - sec. XVIII',
    Sede = 'Pistoia',
    Profilo = '05'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Opera di San Jacopo di Pistoia');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2024-04-18 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Denominazione = 'Opera di San Jacopo di Pistoia';
INSERT INTO EntiDenominazioni (ID_Ente, AltraDenominazione)
  SELECT ID_Ente, 'Opera di Sant''Iacopo' FROM Enti WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Opera di San Jacopo di Pistoia');

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Ufficio tecnico erariale di Pistoia', 'E');
UPDATE Enti SET
    Denominazione = 'Ufficio tecnico erariale di Pistoia',
    AreaGeografica = 'Provincia di Pistoia',
    Storia = 'Ufficio periferico del Ministero delle finanze per il catasto e i servizi tecnici erariali. Le sue funzioni passarono nel 2000 all''Agenzia del territorio.',
    DataInizio = 19360101,
    DataFine = 20001231,
    DescrizioneEstremi = '1936 - 2000',
    Sede = 'Pistoia',
    Profilo = '02'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Ufficio tecnico erariale di Pistoia');
UPDATE Soggetti SET
    Pubblicato = 'N',
    DataRedazione = '2024-05-06 00:00:00',
    Redattore = 'Giulia Bartolini'
  WHERE Denominazione = 'Ufficio tecnico erariale di Pistoia';
INSERT INTO EntiDenominazioni (ID_Ente, AltraDenominazione)
  SELECT ID_Ente, 'UTE di Pistoia' FROM Enti WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Ufficio tecnico erariale di Pistoia');

INSERT INTO Soggetti (Denominazione, TipoSoggetto) VALUES ('Vicariato di Pescia', 'E');
UPDATE Enti SET
    Denominazione = 'Vicariato di Pescia',
    AreaGeografica = 'Valdinievole',
    Storia = 'Circoscrizione della Repubblica fiorentina e poi del Granducato di Toscana, retta da un vicario con giurisdizione civile e criminale sulle comunità della Valdinievole.',
    DataInizio = 15290101,
    DataFine = 18381231,
    DescrizioneEstremi = 'sec. XVI - 1838',
    Sede = 'Pescia',
    Profilo = '01'
  WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Vicariato di Pescia');
UPDATE Soggetti SET
    Pubblicato = 'S',
    DataRedazione = '2023-11-14 00:00:00',
    Redattore = 'Marco Ghilardi'
  WHERE Denominazione = 'Vicariato di Pescia';
INSERT INTO EntiDenominazioni (ID_Ente, AltraDenominazione)
  SELECT ID_Ente, 'Vicariato della Valdinievole' FROM Enti WHERE ID_Soggetto = (SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = 'Vicariato di Pescia');


-- Produttori dei complessi e delle unità
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Pergamene di Altopascio' AND S.Denominazione = 'Spedale di San Jacopo di Altopascio';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Archivio dei notari' AND S.Denominazione = 'Collegio dei notai di Lucca';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Archivio Guinigi' AND S.Denominazione = 'Guinigi';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Archivio Guinigi' AND S.Denominazione = 'Guinigi Paolo';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Opera di San Jacopo' AND S.Denominazione = 'Opera di San Jacopo di Pistoia';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Ufficio tecnico erariale di Pistoia' AND S.Denominazione = 'Ufficio tecnico erariale di Pistoia';
INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto)
  SELECT C.ID_ComplessoDoc, S.ID_Soggetto FROM ComplessiDoc C, Soggetti S
  WHERE C.Denominazione = 'Vicariato di Pescia' AND S.Denominazione = 'Vicariato di Pescia';
INSERT INTO DatiInventarialiSoggetti (ID_DatoInventariale, ID_Soggetto)
  SELECT D.ID_DatoInventariale, S.ID_Soggetto FROM DatiInventariali D, Soggetti S
  WHERE D.Titolo = 'Lettere di Paolo Guinigi' AND S.Denominazione = 'Guinigi Paolo';
INSERT INTO DatiInventarialiSoggetti (ID_DatoInventariale, ID_Soggetto)
  SELECT D.ID_DatoInventariale, S.ID_Soggetto FROM DatiInventariali D, Soggetti S
  WHERE D.Titolo = 'Libri di commercio della compagnia Guinigi' AND S.Denominazione = 'Guinigi';
INSERT INTO DatiInventarialiSoggetti (ID_DatoInventariale, ID_Soggetto)
  SELECT D.ID_DatoInventariale, S.ID_Soggetto FROM DatiInventariali D, Soggetti S
  WHERE D.Titolo = 'Mappe di impianto, fogli 1-74' AND S.Denominazione = 'Bardelli Ugo';

-- Altre denominazioni dei complessi e degli strumenti di ricerca
INSERT INTO ComplessiDocDenominazioni (ID_ComplessoDoc, AltraDenominazione)
  SELECT ID_ComplessoDoc, 'Pergamene sciolte' FROM ComplessiDoc WHERE Denominazione = 'Diplomatico';
INSERT INTO ComplessiDocDenominazioni (ID_ComplessoDoc, AltraDenominazione)
  SELECT ID_ComplessoDoc, 'Archivio notarile' FROM ComplessiDoc WHERE Denominazione = 'Archivio dei notari';
INSERT INTO ComplessiDocDenominazioni (ID_ComplessoDoc, AltraDenominazione)
  SELECT ID_ComplessoDoc, 'Archivio della famiglia Guinigi' FROM ComplessiDoc WHERE Denominazione = 'Archivio Guinigi';
INSERT INTO ComplessiDocDenominazioni (ID_ComplessoDoc, AltraDenominazione)
  SELECT ID_ComplessoDoc, 'Opera di Sant''Iacopo' FROM ComplessiDoc WHERE Denominazione = 'Opera di San Jacopo';
INSERT INTO InventariDenominazioni (ID_Inventario, AltraDenominazione)
  SELECT ID_Inventario, 'Inventario Bongi' FROM Inventari WHERE Denominazione = 'Inventario del Regio Archivio di Stato in Lucca';
INSERT INTO InventariDenominazioni (ID_Inventario, AltraDenominazione)
  SELECT ID_Inventario, 'Regesto di Altopascio' FROM Inventari WHERE Denominazione = 'Regesto delle pergamene di Altopascio';

-- Punti di accesso: antroponimi, toponimi, titolari di sigilli
INSERT INTO Antroponimi (Nome)
  VALUES ('Rolando del fu Ghisolfo');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Gualando', 'rettore dello Spedale di Altopascio');
INSERT INTO Antroponimi (Nome)
  VALUES ('Ildebrando del fu Benedetto');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Ubaldo', 'rettore dello Spedale di Altopascio');
INSERT INTO Antroponimi (Nome, Titoli, Note)
  VALUES ('Guido', 'notaio', 'Notaio lucchese attivo nella prima metà del secolo XII.');
INSERT INTO Antroponimi (Nome, Titoli, Note)
  VALUES ('Gregorio IX', 'papa', 'Ugolino dei conti di Segni, pontefice dal 1227 al 1241.');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Bonagiunta di Orlando', 'notaio');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Ugolino', 'maestro dello Spedale di Altopascio');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Puccino di Lemmo da Capannori', 'lavoratore di terre');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Paolo Guinigi', 'signore di Lucca');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Domenico Lupardi', 'notaio');
INSERT INTO Antroponimi (Nome, Titoli)
  VALUES ('Iacopo di Puccino', 'notaio');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Altopascio');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Lucca');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Pozzeveri');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Capannori');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Perugia');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Pistoia');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Pescia');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Bruges');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Valdinievole');
INSERT INTO Toponimi (Denominazione)
  VALUES ('Uzzano');
INSERT INTO Titolari (Nome, Titoli, Note)
  VALUES ('Gregorio IX', 'papa', 'Ugolino dei conti di Segni, pontefice dal 1227 al 1241.');
INSERT INTO Titolari (Nome, Titoli)
  VALUES ('Spedale di San Jacopo di Altopascio', 'ente ospedaliero');
INSERT INTO Titolari (Nome, Titoli)
  VALUES ('Capitolo dei frati di Altopascio', 'capitolo');
INSERT INTO Titolari (Nome, Titoli)
  VALUES ('Comune di Pistoia', 'comune');

-- Collegamenti dei punti di accesso
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autore' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1098 marzo 5' AND A.Nome = 'Rolando del fu Ghisolfo';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Destinatario' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1098 marzo 5' AND A.Nome = 'Gualando';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autore' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1143 gennaio 12' AND A.Nome = 'Ildebrando del fu Benedetto';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Destinatario' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1143 gennaio 12' AND A.Nome = 'Ubaldo';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Rogatario' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1143 gennaio 12' AND A.Nome = 'Guido';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autore' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1228 novembre 20' AND A.Nome = 'Gregorio IX';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autore' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1228 novembre 20 (copia)' AND A.Nome = 'Gregorio IX';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autenticatore della copia' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1228 novembre 20 (copia)' AND A.Nome = 'Bonagiunta di Orlando';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Autore' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1345 settembre 8' AND A.Nome = 'Ugolino';
INSERT INTO PGAntroponimi (ID_Pergamena, ID_Antroponimo, Ruolo)
  SELECT P.ID_Pergamena, A.ID_Antroponimo, 'Destinatario' FROM Pergamene P, Antroponimi A
  WHERE P.Segnatura = 'Altopascio, 1345 settembre 8' AND A.Nome = 'Puccino di Lemmo da Capannori';
INSERT INTO DIAntroponimi (ID_DatoInventariale, ID_Antroponimo)
  SELECT D.ID_DatoInventariale, A.ID_Antroponimo FROM DatiInventariali D, Antroponimi A
  WHERE D.Titolo = 'Protocollo di ser Iacopo di Puccino (1352-1360)' AND A.Nome = 'Iacopo di Puccino';
INSERT INTO DIAntroponimi (ID_DatoInventariale, ID_Antroponimo)
  SELECT D.ID_DatoInventariale, A.ID_Antroponimo FROM DatiInventariali D, Antroponimi A
  WHERE D.Titolo = 'Protocollo di ser Iacopo di Puccino (1361-1368)' AND A.Nome = 'Iacopo di Puccino';
INSERT INTO DIAntroponimi (ID_DatoInventariale, ID_Antroponimo)
  SELECT D.ID_DatoInventariale, A.ID_Antroponimo FROM DatiInventariali D, Antroponimi A
  WHERE D.Titolo = 'Testamenti rogati da ser Domenico Lupardi (1441-1450)' AND A.Nome = 'Domenico Lupardi';
INSERT INTO DIAntroponimi (ID_DatoInventariale, ID_Antroponimo)
  SELECT D.ID_DatoInventariale, A.ID_Antroponimo FROM DatiInventariali D, Antroponimi A
  WHERE D.Titolo = 'Busta 15 - Protocolli sciolti di ser Domenico Lupardi' AND A.Nome = 'Domenico Lupardi';
INSERT INTO DIAntroponimi (ID_DatoInventariale, ID_Antroponimo)
  SELECT D.ID_DatoInventariale, A.ID_Antroponimo FROM DatiInventariali D, Antroponimi A
  WHERE D.Titolo = 'Lettere di Paolo Guinigi' AND A.Nome = 'Paolo Guinigi';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1098 marzo 5' AND T.Denominazione = 'Pozzeveri';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1098 marzo 5' AND T.Denominazione = 'Lucca';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1143 gennaio 12' AND T.Denominazione = 'Pozzeveri';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1143 gennaio 12' AND T.Denominazione = 'Altopascio';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1228 novembre 20' AND T.Denominazione = 'Perugia';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1228 novembre 20' AND T.Denominazione = 'Altopascio';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1345 settembre 8' AND T.Denominazione = 'Capannori';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Altopascio, 1345 settembre 8' AND T.Denominazione = 'Altopascio';
INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo)
  SELECT P.ID_Pergamena, T.ID_Toponimo FROM Pergamene P, Toponimi T
  WHERE P.Segnatura = 'Opera di San Jacopo, 1287 luglio 2' AND T.Denominazione = 'Pistoia';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Protocollo di ser Iacopo di Puccino (1352-1360)' AND T.Denominazione = 'Lucca';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Lettere da Bruges alla compagnia Guinigi' AND T.Denominazione = 'Bruges';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Mappe di impianto, fogli 1-74' AND T.Denominazione = 'Pistoia';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Processi criminali (1590-1594)' AND T.Denominazione = 'Valdinievole';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Processi criminali (1590-1594)' AND T.Denominazione = 'Uzzano';
INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo)
  SELECT D.ID_DatoInventariale, T.ID_Toponimo FROM DatiInventariali D, Toponimi T
  WHERE D.Titolo = 'Cause civili (1601-1605)' AND T.Denominazione = 'Pescia';
INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare, Ruolo)
  SELECT S.ID_Sigillo, T.ID_Titolare, 'Titolare' FROM Sigilli S, Titolari T
  WHERE S.Identificativo = 'Bolla plumbea di Gregorio IX' AND T.Nome = 'Gregorio IX';
INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare, Ruolo)
  SELECT S.ID_Sigillo, T.ID_Titolare, 'Titolare' FROM Sigilli S, Titolari T
  WHERE S.Identificativo = 'Sigillo dello Spedale di Altopascio' AND T.Nome = 'Spedale di San Jacopo di Altopascio';
INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare, Ruolo)
  SELECT S.ID_Sigillo, T.ID_Titolare, 'Titolare' FROM Sigilli S, Titolari T
  WHERE S.Identificativo = 'Sigillo del capitolo di Altopascio' AND T.Nome = 'Capitolo dei frati di Altopascio';
INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare, Ruolo)
  SELECT S.ID_Sigillo, T.ID_Titolare, 'Garante' FROM Sigilli S, Titolari T
  WHERE S.Identificativo = 'Sigillo del capitolo di Altopascio' AND T.Nome = 'Spedale di San Jacopo di Altopascio';
INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare, Ruolo)
  SELECT S.ID_Sigillo, T.ID_Titolare, 'Titolare' FROM Sigilli S, Titolari T
  WHERE S.Identificativo = 'Sigillo del Comune di Pistoia' AND T.Nome = 'Comune di Pistoia';
