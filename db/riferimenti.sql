-- Tabellion Archivista: reference lists read by the institute record (provinces and
-- national institute codes), in SQL that both SQLite and PostgreSQL read.
-- Loaded into every new database right after schema.sql.

-- Province e città metropolitane, per sigla.

-- Piemonte
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TO', 'Torino');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AL', 'Alessandria');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AT', 'Asti');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BI', 'Biella');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CN', 'Cuneo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('NO', 'Novara');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VB', 'Verbano-Cusio-Ossola');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VC', 'Vercelli');

-- Valle d'Aosta
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AO', 'Aosta');

-- Lombardia
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MI', 'Milano');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BG', 'Bergamo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BS', 'Brescia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CO', 'Como');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CR', 'Cremona');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LC', 'Lecco');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LO', 'Lodi');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MN', 'Mantova');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MB', 'Monza e della Brianza');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PV', 'Pavia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SO', 'Sondrio');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VA', 'Varese');

-- Trentino-Alto Adige
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BZ', 'Bolzano');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TN', 'Trento');

-- Veneto
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VE', 'Venezia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BL', 'Belluno');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PD', 'Padova');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RO', 'Rovigo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TV', 'Treviso');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VR', 'Verona');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VI', 'Vicenza');

-- Friuli-Venezia Giulia: enti di decentramento regionale
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('GO', 'Gorizia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PN', 'Pordenone');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TS', 'Trieste');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('UD', 'Udine');

-- Liguria
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('GE', 'Genova');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('IM', 'Imperia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SP', 'La Spezia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SV', 'Savona');

-- Emilia-Romagna
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BO', 'Bologna');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FE', 'Ferrara');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FC', 'Forlì-Cesena');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MO', 'Modena');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PR', 'Parma');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PC', 'Piacenza');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RA', 'Ravenna');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RE', 'Reggio Emilia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RN', 'Rimini');

-- Toscana
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FI', 'Firenze');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AR', 'Arezzo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('GR', 'Grosseto');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LI', 'Livorno');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LU', 'Lucca');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MS', 'Massa-Carrara');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PI', 'Pisa');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PT', 'Pistoia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PO', 'Prato');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SI', 'Siena');

-- Umbria
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PG', 'Perugia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TR', 'Terni');

-- Marche
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AN', 'Ancona');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AP', 'Ascoli Piceno');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FM', 'Fermo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MC', 'Macerata');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PU', 'Pesaro e Urbino');

-- Lazio
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RM', 'Roma');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FR', 'Frosinone');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LT', 'Latina');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RI', 'Rieti');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VT', 'Viterbo');

-- Abruzzo
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AQ', 'L''Aquila');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CH', 'Chieti');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PE', 'Pescara');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TE', 'Teramo');

-- Molise
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CB', 'Campobasso');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('IS', 'Isernia');

-- Campania
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('NA', 'Napoli');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AV', 'Avellino');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BN', 'Benevento');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CE', 'Caserta');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SA', 'Salerno');

-- Puglia
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BA', 'Bari');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BT', 'Barletta-Andria-Trani');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('BR', 'Brindisi');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('FG', 'Foggia');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('LE', 'Lecce');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TA', 'Taranto');

-- Basilicata
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('MT', 'Matera');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PZ', 'Potenza');

-- Calabria
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CZ', 'Catanzaro');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CS', 'Cosenza');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('KR', 'Crotone');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RC', 'Reggio Calabria');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VV', 'Vibo Valentia');

-- Sicilia
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('PA', 'Palermo');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CT', 'Catania');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('ME', 'Messina');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('AG', 'Agrigento');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CL', 'Caltanissetta');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('EN', 'Enna');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('RG', 'Ragusa');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SR', 'Siracusa');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('TP', 'Trapani');

-- Sardegna: l'assetto del 2016 (CA, SS, NU, OR, SU) e le province del riordino regionale
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CA', 'Cagliari');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SS', 'Sassari');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('NU', 'Nuoro');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('OR', 'Oristano');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('SU', 'Sud Sardegna');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('OT', 'Gallura Nord-Est Sardegna');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('OG', 'Ogliastra');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('VS', 'Medio Campidano');
INSERT INTO Provincie (Provincia, NomeProvincia) VALUES ('CI', 'Sulcis Iglesiente');

-- Codici degli istituti: ISAD_Codice e ISAD_Sigla identificano la riga.
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (1, 'Archivio Centrale dello Stato', 'ACS058', 'ACS');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (2, 'Archivio di Stato di Arezzo', 'SAS051', 'ASAr');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (3, 'Archivio di Stato di Bologna', 'SAS037', 'ASBo');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (4, 'Archivio di Stato di Cagliari', 'SAS092', 'ASCa');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (5, 'Archivio di Stato di Firenze', 'SAS048', 'ASFi');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (6, 'Archivio di Stato di Genova', 'SAS010', 'ASGe');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (7, 'Archivio di Stato di Livorno', 'SAS049', 'ASLi');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (8, 'Archivio di Stato di Lucca', 'SAS046', 'ASLu');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (9, 'Archivio di Stato di Mantova', 'SAS020', 'ASMn');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (10, 'Archivio di Stato di Massa', 'SAS045', 'ASMs');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (11, 'Archivio di Stato di Milano', 'SAS015', 'ASMi');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (12, 'Archivio di Stato di Napoli', 'SAS063', 'ASNa');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (13, 'Archivio di Stato di Palermo', 'SAS082', 'ASPa');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (14, 'Archivio di Stato di Pisa', 'SAS050', 'ASPi');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (15, 'Archivio di Stato di Pistoia', 'SAS047', 'ASPt');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (16, 'Archivio di Stato di Prato', 'SAS100', 'ASPo');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (17, 'Archivio di Stato di Roma', 'SAS058', 'ASRm');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (18, 'Archivio di Stato di Siena', 'SAS052', 'ASSi');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (19, 'Archivio di Stato di Torino', 'SAS001', 'ASTo');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (20, 'Archivio di Stato di Venezia', 'SAS027', 'ASVe');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (21, 'Sezione di Archivio di Stato di Pescia', 'SSA047', 'SASPe');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (22, 'Sezione di Archivio di Stato di Pontremoli', 'SSA045', 'SASPn');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (23, 'Archivio Storico Diocesano di Lucca', 'ECC046', 'ASDLu');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (24, 'Archivio Capitolare di Pistoia', 'ECC047', 'ACPt');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (25, 'Archivio storico del Comune di Prato', 'COM100', 'ASCPo');
INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, ISAD_Codice, ISAD_Sigla)
  VALUES (26, 'Archivio dell''Opera di Santa Maria del Fiore', 'PRI048', 'AOSMF');
