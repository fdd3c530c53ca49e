#!/usr/bin/env python3
"""Writes db/sqlite/schema.sql and db/postgresql/schema.sql from one description of the
database: tables, keys, indexes, views and the triggers that carry the database's duties.

    python3 db/genera_schema.py              writes them
    python3 db/genera_schema.py --controlla  exits 1, naming them, when a file differs

The two scripts, the upgrade site/alter.sql and the exchange schema files site/Schemi are
committed; run this again after changing the description below (a test runs --controlla).

Decisions kept here, where a reader of the schema finds them (they are repeated at the head
of each generated script):
- Every generated key lies between Config.ID_Start and Config.ID_End. PostgreSQL: identity
  sequences bounded to that range (tabellion_allinea_chiavi() realigns them all when the range
  changes, tabellion_riallinea_chiave(table) one table's after an import). SQLite: the
  program's inserts take the next key of the range in the insert itself (the store's
  Backend::IstruzioneInserisci). The detail row of an element, and the kind row of a producer,
  take the key of their element or producer.
- DenomCompleta of Istituti, ComplessiDoc and Inventari: the denominations from the topmost
  ancestor down to the element itself, joined by " > ", kept current on every rename.
- Counters: Istituti.NumeroComplessi/NumeroInventari count the complessi and inventari whose
  ID_Istituto is that institute; ComplessiDoc.NumeroInventari its Links rows to an inventario;
  Inventari.NumeroComplessi the complessi linked to it; Inventari.NumeroPergamene,
  NumeroDatiInventariali, NumeroSigilli the rows with its ID_Inventario. Never Null.
- ComplessiDoc.Valore = Quantita * KConservazione * KPeriodo * KSupporto * KRilevanza * KRarita;
  QuantitaFigli, MetriLineariFigli, ValoreFigli sum what the direct child complessi bring: each
  child its own figure when it has one (not Null and not 0), otherwise the figure it carries up.
  A level's own Quantita is the total of the level, so a level whose children declare theirs is
  compared with exactly those totals, and levels that declare nothing pass their children's
  figures on up. DataInizioFigli/DataFineFigli span the children's dates and carried-up dates
  (the whole subtree). Kept current up the chain of ancestors on insert, update and delete; a
  change stops climbing at the first ancestor whose share of its own parent stays the same.
- ISAD_Nazione is 'IT'; ISAD_Codice/ISAD_Sigla of a complesso are those of its institute; of a
  producer those of the site's first top-level institute that has a code.
- ID_Istituto of complessi, inventari and versamenti: the nearest institute above them.
  ID_Inventario of units, pergamene and sigilli: the detail key of the nearest inventario above.
- Code comes from Config.Code when the row does not bring one (an imported row keeps its own).
- Deleting an element that still has children is refused; deleting a detail row removes its
  Elementi row, its Links rows and every row that hangs on it.
- Config.Versione is a number (the demo database holds 4).
- DatiInventariali.Ordinamento is text of 3; the views expose DATIINV_Ordinamento as a number,
  Null where the text is not one.
- Versamenti.Titolo is the element's denomination.
- Versamenti.NumeroRPC is a whole number of up to 18 digits, held exactly (64 bits); the upgrade
  turns the floating column of earlier versions into it.
- No declared foreign keys: tables are imported one at a time, so integrity is kept by triggers,
  which an import switches off per table (SQLite: a row in TriggerSospesi; PostgreSQL:
  DISABLE TRIGGER USER through tabellion_interruttore_trigger(table, on)).
- PostgreSQL rights: everything belongs to one owner role; the archivists' group gets, through
  tabellion_concedi_diritti(group), the rows of every table (of Config only Valore and
  DataValore to change), the sequences, and the two functions that run with the owner's rights
  what an import needs of an owner: tabellion_interruttore_trigger and
  tabellion_riallinea_chiave. No function is executable by PUBLIC.
"""

from __future__ import annotations

import os
import re
from dataclasses import dataclass, field

# --------------------------------------------------------------------------------------------
# Tables
# --------------------------------------------------------------------------------------------

# Column kinds: 'id' generated key; 'long' integer; 'long64' 64-bit integer; 'num' double;
# 'yyyymmdd' archival date as a number; 'data' a real date and time; 'testo:N' text of at most
# N; 'memo' long text; 'flag' 0 or 1.


@dataclass
class Colonna:
    nome: str
    tipo: str
    nullo: bool = True
    predefinito: str | None = None


@dataclass
class Tabella:
    nome: str
    colonne: list[Colonna]
    chiave: list[str]
    codice: bool = True  # carries the site's Code
    indici: list[tuple[str, ...]] = field(default_factory=list)
    unici: list[tuple[str, ...]] = field(default_factory=list)

    @property
    def chiave_generata(self) -> str | None:
        for c in self.colonne:
            if c.tipo == 'id':
                return c.nome
        return None


def C(nome, tipo, nullo=True, predefinito=None):
    return Colonna(nome, tipo, nullo, predefinito)


T = []


def tabella(nome, colonne, chiave, **altro):
    T.append(Tabella(nome, colonne, chiave, **altro))


tabella('Config', [
    C('Code', 'testo:10', False), C('Descrizione', 'testo:255'), C('Versione', 'num'),
    C('ID_Start', 'long', False), C('ID_End', 'long', False), C('Valore', 'num', False, '0'),
    C('DataValore', 'testo:20'),
], ['Code'], codice=False)

tabella('Elementi', [
    C('ID_Elemento', 'id'), C('ID_ElementoPadre', 'long'), C('Tipologia', 'testo:2', False),
    C('Denominazione', 'testo:512', False, "''"), C('Pubblicato', 'testo:1'),
    C('DataRedazione', 'data'), C('Redattore', 'testo:64'), C('Figli', 'long', False, '0'),
    C('XmlLink', 'testo:512'), C('Md5Link', 'testo:32'), C('PaginaStart', 'long', True, '0'),
    C('PaginaEnd', 'long', True, '0'), C('StruProg', 'long'),
], ['ID_Elemento'], indici=[('ID_ElementoPadre',)])

tabella('Links', [
    C('ID_Elemento', 'long', False), C('ID_ElementoLink', 'long', False),
    C('Specifica', 'testo:255', True, "''"),
], ['ID_Elemento', 'ID_ElementoLink'], indici=[('ID_ElementoLink',)])

tabella('Istituti', [
    C('ID_Istituto', 'id'), C('ID_Elemento', 'long', False), C('Denominazione', 'testo:256', False, "''"),
    C('Tipologia', 'testo:2'), C('Indirizzo', 'testo:64'), C('Citta', 'testo:64'), C('Cap', 'testo:6'),
    C('Provincia', 'testo:4'), C('Telefono', 'testo:64'), C('Fax', 'testo:64'), C('EMail', 'testo:64'),
    C('UrlWeb', 'testo:128'), C('Responsabile', 'testo:256'), C('Orario', 'testo:128'),
    C('Note', 'testo:1024'), C('UrlLink', 'testo:128'), C('NoteDirezione', 'testo:1024'),
    C('NumeroComplessi', 'long', False, '0'), C('NumeroInventari', 'long', False, '0'),
    C('DenomCompleta', 'memo'), C('ISAD_Codice', 'testo:16'), C('ISAD_Sigla', 'testo:16'),
], ['ID_Istituto'], unici=[('ID_Elemento',)], indici=[('Tipologia',)])

tabella('CodiciIstituto', [
    C('ID_CodiceIstituto', 'long', False), C('Denominazione', 'testo:256'),
    C('ISAD_Codice', 'testo:16'), C('ISAD_Sigla', 'testo:16'),
], ['ID_CodiceIstituto'], codice=False, indici=[('ISAD_Codice', 'ISAD_Sigla'), ('Denominazione',)])

tabella('Provincie', [
    C('Provincia', 'testo:4', False), C('NomeProvincia', 'testo:64'),
], ['Provincia'], codice=False, indici=[('NomeProvincia',)])  # a reference list: stays home

tabella('ComplessiDoc', [
    C('ID_ComplessoDoc', 'id'), C('ID_Elemento', 'long', False), C('ID_Istituto', 'long'),
    C('Denominazione', 'testo:256', False, "''"), C('NoteStoriche', 'testo:1024'), C('Note', 'testo:1024'),
    C('Classificazione', 'testo:64'), C('KConservazione', 'num', True, '0'),
    C('KPeriodo', 'num', True, '0'), C('KSupporto', 'num', True, '0'), C('KRilevanza', 'num', True, '0'),
    C('KRarita', 'num', True, '0'), C('Quantita', 'num', True, '0'),
    C('QuantitaFigli', 'num', True, '0'), C('Valore', 'num', True, '0'),
    C('ValoreFigli', 'num', True, '0'), C('MetriLineari', 'num', True, '0'),
    C('MetriLineariFigli', 'num', True, '0'), C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'),
    C('DescrizioneEstremi', 'testo:64'), C('DescrizioneEstensioni', 'testo:64'),
    C('DataInizioFigli', 'yyyymmdd'), C('DataFineFigli', 'yyyymmdd'), C('NoteDirezione', 'testo:1024'),
    C('UrlLink', 'testo:128'), C('Ordinamento', 'long'), C('Topografico', 'testo:256'),
    C('ID_IstitutoMag', 'long'), C('ID_IstitutoSede', 'long'), C('Tipologia', 'testo:2'),
    C('ISAD_Nazione', 'testo:4'), C('ISAD_Codice', 'testo:16'), C('ISAD_Sigla', 'testo:16'),
    C('NumeroInventari', 'long', False, '0'), C('DenomCompleta', 'memo'),
], ['ID_ComplessoDoc'], unici=[('ID_Elemento',)],
    indici=[('ID_Istituto',), ('ID_IstitutoSede',), ('ID_IstitutoMag',)])

tabella('Inventari', [
    C('ID_Inventario', 'id'), C('ID_Elemento', 'long', False), C('ID_Istituto', 'long'),
    C('Denominazione', 'testo:256', False, "''"), C('Tipologia', 'testo:2'), C('ID_IstitutoSede', 'long'),
    C('ID_IstitutoMag', 'long'), C('AnnoInizio', 'long'), C('AnnoFine', 'long'),
    C('DescrizioneEstremi', 'testo:256'), C('Autore', 'testo:256'), C('TipoInventario', 'testo:1'),
    C('Note', 'testo:1024'), C('XmlLink', 'testo:128'), C('UrlLink', 'testo:128'),
    C('NoteDirezione', 'testo:1024'), C('SubTipologia', 'testo:2'), C('Edizione', 'testo:256'),
    C('NumeroPergamene', 'long', False, '0'), C('NumeroDatiInventariali', 'long', False, '0'),
    C('NumeroSigilli', 'long', False, '0'), C('TipoInv', 'testo:2'),
    C('NumeroComplessi', 'long', False, '0'), C('DenomCompleta', 'memo'),
], ['ID_Inventario'], unici=[('ID_Elemento',)],
    indici=[('ID_Istituto',), ('ID_IstitutoSede',), ('ID_IstitutoMag',), ('Denominazione',)])

tabella('DatiInventariali', [
    C('ID_DatoInventariale', 'id'), C('ID_Elemento', 'long', False), C('ID_Inventario', 'long'),
    C('Tipologia', 'testo:2', True, "'00'"), C('Numero', 'testo:64'), C('Descrizione', 'testo:64'),
    C('DescrizioneTestuale', 'testo:1024'), C('DescrizioneEstremi', 'testo:128'),
    C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'), C('Classificazione', 'testo:64'),
    C('Note', 'testo:1024'), C('CoseNotevoli', 'testo:512'), C('Ordinamento', 'testo:3'),
    C('Titolo', 'testo:128', False, "''"), C('Acquisizione', 'testo:256'),
    C('CriteriOrdinamento', 'testo:256'), C('Accesso', 'testo:256'), C('Riproduzione', 'testo:128'),
    C('Lingua', 'testo:128'), C('Conservazione', 'testo:256'), C('NoteGestionali', 'testo:1024'),
    C('Id_ElemComplDoc', 'long', True, '0'), C('FlgUnitaCond', 'flag', True, '0'),
], ['ID_DatoInventariale'], unici=[('ID_Elemento',)], indici=[('ID_Inventario',), ('Id_ElemComplDoc',)])

tabella('Versamenti', [
    C('ID_Versamento', 'id'), C('ID_Elemento', 'long', False), C('ID_Istituto', 'long'),
    C('Data', 'data'), C('Titolo', 'testo:512'), C('Note', 'testo:1024'), C('NumeroRPC', 'long64'),
    C('SogVersatore', 'testo:256'), C('TipoAcquisizione', 'testo:2'), C('DataAcquisizione', 'data'),
    C('NoteDirezione', 'testo:1024'), C('Tipologia', 'testo:2'),
], ['ID_Versamento'], unici=[('ID_Elemento',)], indici=[('ID_Istituto',)])

tabella('RigheVersamento', [
    C('ID_RigaVersamento', 'id'), C('ID_Versamento', 'long', False), C('ID_ComplessoDoc', 'long', True, '0'),
    C('Denominazione', 'testo:256', False, "''"), C('Quantita', 'num', True, '0'),
    C('MetriLineari', 'num', True, '0'), C('Classificazione', 'testo:64'),
    C('DescrizioneEstremi', 'testo:64'), C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'),
    C('Note', 'testo:1024'),
], ['ID_RigaVersamento'], indici=[('ID_Versamento',), ('ID_ComplessoDoc',)])

tabella('Pergamene', [
    C('ID_Pergamena', 'id'), C('ID_Elemento', 'long', False), C('ID_Inventario', 'long'),
    C('Segnatura', 'testo:64', False, "''"), C('DataCronicaInizio', 'yyyymmdd'),
    C('DataCronicaFine', 'yyyymmdd'), C('DataTopica', 'testo:64'), C('Datazio', 'testo:256'),
    C('Regesto', 'testo:1024'), C('Miniatura', 'testo:512'), C('SigilliAttuali', 'long', True, '0'),
    C('SigilliOriginari', 'long', True, '0'), C('Annuncio', 'testo:1024'), C('Accesso', 'testo:256'),
    C('Riproduzione', 'testo:128'), C('Lingua', 'testo:128'), C('Bibliografia', 'testo:1024'),
    C('NoteDirezione', 'testo:1024'), C('NoteRiproduzione', 'testo:256'), C('Note', 'testo:1024'),
    C('UrlLink', 'testo:128'), C('DescrizioneEstremi', 'testo:128'), C('FlgUnitaCond', 'flag', True, '0'),
], ['ID_Pergamena'], unici=[('ID_Elemento',)], indici=[('ID_Inventario',)])

tabella('PGSupporti', [
    C('ID_Pergamena', 'long', False), C('Supporto', 'testo:32'), C('StatoConservazione', 'testo:256'),
    C('Dimensioni', 'testo:32'), C('Note', 'testo:1024'),
], ['ID_Pergamena'])
tabella('PGTraditio', [
    C('ID_Pergamena', 'long', False), C('Traditio', 'testo:2'), C('DataCopia', 'yyyymmdd'),
    C('Rogatario', 'testo:512'), C('DataCopiaTesto', 'testo:64'), C('ID_Elemento', 'long'),
], ['ID_Pergamena'], indici=[('ID_Elemento',)])
tabella('PGEleGrafici', [C('ID_Pergamena', 'long', False), C('NoteGrafiche', 'testo:512')],
        ['ID_Pergamena'])
tabella('PGNoteStoriche', [C('ID_Pergamena', 'long', False), C('NoteStoriche', 'testo:1024')],
        ['ID_Pergamena'])
tabella('PGNotazioni', [
    C('ID_PgNotazione', 'id'), C('ID_Pergamena', 'long', False), C('Trascrizione', 'memo'),
    C('Posizione', 'testo:64', False, "''"), C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'),
    C('DescrizioneEstremi', 'testo:64'), C('Note', 'testo:512'),
], ['ID_PgNotazione'], indici=[('ID_Pergamena',)])
tabella('PGAltreSegnature', [
    C('ID_PGAltraSegnatura', 'id'), C('ID_Pergamena', 'long', False), C('Segnatura', 'testo:128', True, "''"),
], ['ID_PGAltraSegnatura'], indici=[('ID_Pergamena',)])
tabella('PGSigilli', [C('ID_Pergamena', 'long', False), C('ID_Sigillo', 'long', False, '0')],
        ['ID_Pergamena', 'ID_Sigillo'], indici=[('ID_Sigillo',)])

tabella('Sigilli', [
    C('ID_Sigillo', 'id'), C('ID_Elemento', 'long', False), C('ID_Inventario', 'long'),
    C('Identificativo', 'testo:256'), C('Tipologia', 'testo:2'), C('DataInizio', 'yyyymmdd'),
    C('DataFine', 'yyyymmdd'), C('Dimensioni', 'testo:32'), C('MateriaNuovo', 'testo:2'),
    C('Colore', 'testo:64'), C('Apposizione', 'testo:128'), C('Rapporto', 'testo:2'),
    C('Ruolo', 'testo:128'), C('Posizione', 'testo:64'), C('NoteDirezione', 'testo:1024'),
    C('Attacchi', 'testo:128'), C('Protezione', 'testo:128'), C('Qualita', 'testo:128'),
    C('Conservazione', 'testo:256'), C('Segni', 'testo:256'), C('Autenticita', 'testo:256'),
    C('Matrice', 'testo:256'), C('AltreImpronteSigillo', 'testo:512'),
    C('AltreImpronteTitolare', 'testo:512'), C('Edizione', 'testo:256'), C('Bibliografia', 'testo:1024'),
    C('Accesso', 'testo:256'), C('Riproduzione', 'testo:128'), C('Note', 'testo:1024'),
    C('RifDocNoInv', 'testo:512'), C('DescrizioneEstremi', 'testo:256'), C('UrlLink', 'testo:128'),
    C('FlgUnitaCond', 'flag', True, '0'),
], ['ID_Sigillo'], unici=[('ID_Elemento',)], indici=[('ID_Inventario',)])

tabella('SGTipo', [
    C('ID_Sigillo', 'long', False), C('FormaR', 'testo:128'), C('DimensioniR', 'testo:32'),
    C('TrascrizioneR', 'testo:512'), C('LinguaR', 'testo:128'), C('DescrizioneR', 'testo:1024'),
    C('TrascrizioneV', 'testo:512'), C('LinguaV', 'testo:128'), C('DescrizioneV', 'testo:1024'),
    C('TipologiaR', 'testo:128'), C('Incisore', 'testo:1024'), C('FormaV', 'testo:128'),
    C('DimensioniV', 'testo:32'), C('TipologiaV', 'testo:128'), C('TipologIcoR', 'testo:2'),
    C('TipologIcoV', 'testo:2'),
], ['ID_Sigillo'])

tabella('DICoseNotevoli', [
    C('ID_DICosaNotevole', 'id'), C('ID_DatoInventariale', 'long', False),
    C('Descrizione', 'memo', True, "''"),
], ['ID_DICosaNotevole'], indici=[('ID_DatoInventariale',)])

tabella('Soggetti', [
    C('ID_Soggetto', 'id'), C('Denominazione', 'testo:256', False, "''"),
    C('TipoSoggetto', 'testo:1', False), C('Pubblicato', 'testo:1'), C('DataRedazione', 'data'),
    C('Redattore', 'testo:64'),
], ['ID_Soggetto'], indici=[('TipoSoggetto',), ('Denominazione',)])

ISAD = [C('ISAD_Nazione', 'testo:4'), C('ISAD_Codice', 'testo:16'), C('ISAD_Sigla', 'testo:16')]
tabella('Persone', [
    C('ID_Persona', 'id'), C('ID_Soggetto', 'long', False), C('Nome', 'testo:256', False, "''"),
    C('Titoli', 'testo:32'), C('DataNascita', 'yyyymmdd'), C('DataMorte', 'yyyymmdd'),
    C('AreaGeografica', 'testo:64'), C('Storia', 'testo:1024'), C('Note', 'testo:1024'),
    C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'), C('DescrizioneEstremi', 'testo:64'),
    C('LuogoNascita', 'testo:32'), C('LuogoMorte', 'testo:32'), C('NoteDirezione', 'testo:1024'),
] + ISAD, ['ID_Persona'], unici=[('ID_Soggetto',)])
tabella('Famiglie', [
    C('ID_Famiglia', 'id'), C('ID_Soggetto', 'long', False), C('Nome', 'testo:256', False, "''"),
    C('Titoli', 'testo:32'), C('Persone', 'memo'), C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'),
    C('DescrizioneEstremi', 'testo:64'), C('AreaGeografica', 'testo:64'), C('Storia', 'testo:1024'),
    C('Note', 'testo:1024'), C('NoteDirezione', 'testo:1024'),
] + ISAD, ['ID_Famiglia'], unici=[('ID_Soggetto',)])
tabella('Enti', [
    C('ID_Ente', 'id'), C('ID_Soggetto', 'long', False), C('Denominazione', 'testo:256', False, "''"),
    C('AreaGeografica', 'testo:64'), C('NaturaGiuridica', 'testo:256'), C('Storia', 'testo:1024'),
    C('Note', 'testo:1024'), C('DataInizio', 'yyyymmdd'), C('DataFine', 'yyyymmdd'),
    C('DescrizioneEstremi', 'testo:64'), C('Sede', 'testo:64'), C('Profilo', 'testo:2'),
    C('NoteDirezione', 'testo:1024'),
] + ISAD, ['ID_Ente'], unici=[('ID_Soggetto',)])

ALTRE_DENOMINAZIONI = [('ComplessiDocDenominazioni', 'ID_ComplessoDoc'),
                       ('InventariDenominazioni', 'ID_Inventario'),
                       ('PersoneDenominazioni', 'ID_Persona'),
                       ('FamiglieDenominazioni', 'ID_Famiglia'),
                       ('EntiDenominazioni', 'ID_Ente')]
for nome, padre in ALTRE_DENOMINAZIONI:
    tabella(nome, [C('ID_Denominazione', 'id'), C(padre, 'long', False),
                   C('AltraDenominazione', 'testo:256', True, "''")],
            ['ID_Denominazione'], indici=[(padre,)])

tabella('Antroponimi', [C('ID_Antroponimo', 'id'), C('Nome', 'testo:128', False, "''"),
                        C('Titoli', 'testo:256'), C('Note', 'testo:512')],
        ['ID_Antroponimo'], indici=[('Nome',)])
tabella('Toponimi', [C('ID_Toponimo', 'id'), C('Denominazione', 'testo:64', False, "''")],
        ['ID_Toponimo'], indici=[('Denominazione',)])
tabella('Titolari', [C('ID_Titolare', 'id'), C('Nome', 'testo:128', False, "''"),
                     C('Titoli', 'testo:256'), C('Note', 'testo:1024'), C('Bibliografia', 'testo:1024')],
        ['ID_Titolare'], indici=[('Nome',)])

tabella('ComplessiDocSoggetti', [C('ID_ComplessoDoc', 'long', False), C('ID_Soggetto', 'long', False)],
        ['ID_ComplessoDoc', 'ID_Soggetto'], indici=[('ID_Soggetto',)])
tabella('DatiInventarialiSoggetti', [C('ID_DatoInventariale', 'long', False),
                                     C('ID_Soggetto', 'long', False)],
        ['ID_DatoInventariale', 'ID_Soggetto'], indici=[('ID_Soggetto',)])
tabella('PGAntroponimi', [C('ID_PGAntroponimo', 'id'), C('ID_Pergamena', 'long', False),
                          C('ID_Antroponimo', 'long', False), C('Ruolo', 'testo:32')],
        ['ID_PGAntroponimo'], unici=[('ID_Pergamena', 'ID_Antroponimo')], indici=[('ID_Antroponimo',)])
tabella('DIAntroponimi', [C('ID_DIAntroponimo', 'id'), C('ID_DatoInventariale', 'long', False),
                          C('ID_Antroponimo', 'long', False)],
        ['ID_DIAntroponimo'], unici=[('ID_DatoInventariale', 'ID_Antroponimo')],
        indici=[('ID_Antroponimo',)])
tabella('PGToponimi', [C('ID_Pergamena', 'long', False), C('ID_Toponimo', 'long', False)],
        ['ID_Pergamena', 'ID_Toponimo'], indici=[('ID_Toponimo',)])
tabella('DIToponimi', [C('ID_DatoInventariale', 'long', False), C('ID_Toponimo', 'long', False)],
        ['ID_DatoInventariale', 'ID_Toponimo'], indici=[('ID_Toponimo',)])
tabella('SGTitolari', [C('ID_SGTitolare', 'id'), C('ID_Sigillo', 'long', False),
                       C('ID_Titolare', 'long', False), C('Ruolo', 'testo:32')],
        ['ID_SGTitolare'], unici=[('ID_Sigillo', 'ID_Titolare')], indici=[('ID_Titolare',)])

tabella('MD5Location', [C('MD5', 'testo:32', False), C('LogicalPath', 'testo:1024'),
                        C('XmlName', 'testo:256'), C('Status', 'long', True, '0')],
        ['MD5'], codice=False)
tabella('ImgCounter', [C('PhisicalPath', 'testo:1024', False), C('Counter', 'long')],
        ['PhisicalPath'], codice=False)

# The web index, rebuilt by the web index procedure from the published elements.
tabella('IndiceWeb', [
    C('ID_Elemento', 'long', False), C('ID_ElementoPadre', 'long'), C('Tipologia', 'testo:2', False),
    C('Denominazione', 'testo:512'), C('DenomCompleta', 'memo'), C('DataInizio', 'yyyymmdd'),
    C('DataFine', 'yyyymmdd'),
], ['ID_Elemento'], codice=False, indici=[('ID_ElementoPadre',), ('Tipologia',)])

TABELLE = {t.nome: t for t in T}

# The detail tables of the element kinds: kind, table, key, name column.
DETTAGLI = [
    ('01', 'Istituti', 'ID_Istituto', 'Denominazione'),
    ('02', 'ComplessiDoc', 'ID_ComplessoDoc', 'Denominazione'),
    ('03', 'Inventari', 'ID_Inventario', 'Denominazione'),
    ('04', 'Versamenti', 'ID_Versamento', None),
    ('05', 'Pergamene', 'ID_Pergamena', 'Segnatura'),
    ('06', 'Sigilli', 'ID_Sigillo', 'Identificativo'),
    ('07', 'DatiInventariali', 'ID_DatoInventariale', 'Titolo'),
]

# --------------------------------------------------------------------------------------------
# Dialects
# --------------------------------------------------------------------------------------------


class Dialetto:
    nome = ''
    descrizione = ''  # the server's name, as the program's backend gives it

    def tipo(self, c: Colonna) -> str:
        raise NotImplementedError

    def min2(self, a, b):
        raise NotImplementedError

    def max2(self, a, b):
        raise NotImplementedError


class SQLite(Dialetto):
    nome = 'sqlite'
    descrizione = 'SQLite'

    def tipo(self, c):
        t = c.tipo
        if t == 'id':
            return 'INTEGER'
        if t in ('long', 'long64', 'yyyymmdd', 'flag'):
            return 'INTEGER'
        if t == 'num':
            return 'REAL'
        if t == 'data':
            return 'DATETIME'
        if t == 'memo':
            return 'TEXT COLLATE NOCASE'
        if t.startswith('testo:'):
            return 'VARCHAR(%s) COLLATE NOCASE' % t.split(':')[1]
        raise ValueError(t)

    def min2(self, a, b):
        return 'COALESCE(MIN(%s, %s), %s, %s)' % (a, b, a, b)

    def max2(self, a, b):
        return 'COALESCE(MAX(%s, %s), %s, %s)' % (a, b, a, b)


class PostgreSQL(Dialetto):
    nome = 'postgresql'
    descrizione = 'PostgreSQL'

    def tipo(self, c):
        t = c.tipo
        if t == 'id':
            return 'INTEGER GENERATED BY DEFAULT AS IDENTITY'
        if t in ('long', 'yyyymmdd', 'flag'):
            return 'INTEGER'
        if t == 'long64':
            return 'BIGINT'
        if t == 'num':
            return 'DOUBLE PRECISION'
        if t == 'data':
            return 'TIMESTAMP'
        if t == 'memo':
            return 'TEXT'
        if t.startswith('testo:'):
            return 'VARCHAR(%s)' % t.split(':')[1]
        raise ValueError(t)

    def min2(self, a, b):
        return 'LEAST(%s, %s)' % (a, b)

    def max2(self, a, b):
        return 'GREATEST(%s, %s)' % (a, b)


# --------------------------------------------------------------------------------------------
# Trigger statements, written once for both dialects
# --------------------------------------------------------------------------------------------
# A statement is one of:
#   ('sql', text)                       an UPDATE or DELETE, the same on both servers
#   ('insert', table, {col: expr}, cond) an INSERT ... SELECT of one row, its key generated
#   ('rifiuta', cond, message)          abort the statement with a message when cond holds
# In texts, {MIN2(a|b)} and {MAX2(a|b)} stand for the lesser and greater of two values that
# may be Null.


@dataclass
class Trigger:
    nome: str
    tabella: str
    momento: str  # 'AFTER' or 'BEFORE'
    evento: str  # 'INSERT', 'DELETE', 'UPDATE'
    istruzioni: list
    colonne: tuple[str, ...] = ()  # UPDATE OF
    condizione: str | None = None  # on OLD/NEW only


TRIGGER: list[Trigger] = []


def trigger(nome, tabella, momento, evento, istruzioni, colonne=(), condizione=None):
    TRIGGER.append(Trigger(nome, tabella, momento, evento, istruzioni, tuple(colonne), condizione))


CODICE_SITO = '(SELECT Code FROM Config)'
PADRE_NEW = '(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = NEW.ID_Elemento)'
PADRE_OLD = '(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento)'

# The nearest institute above an element (by its parent): the parent is an institute, or a
# complesso, inventario or versamento that already knows its institute.
ISTITUTO_DEL_PADRE = (
    'COALESCE((SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre))')
INVENTARIO_DEL_PADRE = (
    'COALESCE((SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = NEW.ID_ElementoPadre))')
DENOM_COMPLETA_DEL_PADRE = (
    'COALESCE((SELECT DenomCompleta FROM Istituti WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = NEW.ID_ElementoPadre), '
    '(SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = NEW.ID_ElementoPadre))')


def denom_completa(nome_padre_expr, nome):
    return "COALESCE(%s || ' > ', '') || %s" % (nome_padre_expr, nome)


# The codes of the site's first top-level institute that has one, for producers.
def isad_sito(colonna):
    return ('(SELECT I.%s FROM Istituti I JOIN Elementi E ON E.ID_Elemento = I.ID_Elemento '
            'WHERE E.ID_ElementoPadre IS NULL AND I.ISAD_Codice IS NOT NULL '
            'ORDER BY I.ID_Istituto LIMIT 1)' % colonna)


# --- Elementi ------------------------------------------------------------------------------

ist_insert = []
for tipo, tab, chiave, nome in DETTAGLI:
    # The detail row takes the element's own key: one detail row per element, so the key is
    # unique in its table and lies in the site's range whenever the element's does.
    valori = {chiave: 'NEW.ID_Elemento', 'ID_Elemento': 'NEW.ID_Elemento',
              'Code': 'COALESCE(NEW.Code, %s)' % CODICE_SITO}
    if nome:
        valori[nome] = 'NEW.Denominazione'
    if tab in ('Istituti', 'ComplessiDoc', 'Inventari'):
        valori['DenomCompleta'] = denom_completa(DENOM_COMPLETA_DEL_PADRE, 'NEW.Denominazione')
    if tab in ('ComplessiDoc', 'Inventari', 'Versamenti'):
        valori['ID_Istituto'] = ISTITUTO_DEL_PADRE
    if tab == 'ComplessiDoc':
        valori['ISAD_Nazione'] = "'IT'"
        valori['ISAD_Codice'] = ('(SELECT ISAD_Codice FROM Istituti WHERE ID_Istituto = %s)'
                                 % ISTITUTO_DEL_PADRE)
        valori['ISAD_Sigla'] = ('(SELECT ISAD_Sigla FROM Istituti WHERE ID_Istituto = %s)'
                                % ISTITUTO_DEL_PADRE)
    if tab == 'Versamenti':
        valori['Titolo'] = 'NEW.Denominazione'
    if tab in ('Pergamene', 'Sigilli', 'DatiInventariali'):
        valori['ID_Inventario'] = INVENTARIO_DEL_PADRE
    ist_insert.append(('insert', tab, valori,
                       "NEW.Tipologia = '%s' AND NOT EXISTS (SELECT 1 FROM %s WHERE ID_Elemento = "
                       "NEW.ID_Elemento)" % (tipo, tab)))

trigger('Elementi_Inserimento', 'Elementi', 'AFTER', 'INSERT', [
    ('sql', 'UPDATE Elementi SET Code = %s WHERE ID_Elemento = NEW.ID_Elemento AND Code IS NULL'
     % CODICE_SITO),
    ('sql', 'UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre'),
] + ist_insert)

trigger('Elementi_FigliPresenti', 'Elementi', 'BEFORE', 'DELETE', [
    ('rifiuta', 'EXISTS (SELECT 1 FROM Elementi WHERE ID_ElementoPadre = OLD.ID_Elemento)',
     "Eliminazione rifiutata: l'elemento ha ancora elementi figli."),
])

elimina_dettagli = [('sql', 'DELETE FROM %s WHERE ID_Elemento = OLD.ID_Elemento' % tab)
                    for _, tab, _, _ in DETTAGLI]
trigger('Elementi_Eliminazione', 'Elementi', 'AFTER', 'DELETE', [
    ('sql', 'UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre'),
    ('sql', 'DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = '
     'OLD.ID_Elemento'),
    ('sql', 'UPDATE PGTraditio SET ID_Elemento = NULL WHERE ID_Elemento = OLD.ID_Elemento'),
    ('sql', 'UPDATE DatiInventariali SET Id_ElemComplDoc = 0 WHERE Id_ElemComplDoc = OLD.ID_Elemento'),
] + elimina_dettagli + [
    # The detail is gone: the parent's carried-up figures no longer count it.
    ('sql', 'RICALCOLA_PADRE_OLD'),
])

trigger('Elementi_Padre', 'Elementi', 'AFTER', 'UPDATE', [
    ('sql', 'UPDATE Elementi SET Figli = Figli - 1 WHERE ID_Elemento = OLD.ID_ElementoPadre'),
    ('sql', 'UPDATE Elementi SET Figli = Figli + 1 WHERE ID_Elemento = NEW.ID_ElementoPadre'),
], colonne=['ID_ElementoPadre'],
    condizione='OLD.ID_ElementoPadre IS DISTINCT FROM NEW.ID_ElementoPadre')

# A versamento has no name column of its own: its title is the element's name.
trigger('Elementi_Denominazione', 'Elementi', 'AFTER', 'UPDATE', [
    ('sql', 'UPDATE Versamenti SET Titolo = NEW.Denominazione WHERE ID_Elemento = NEW.ID_Elemento'),
], colonne=['Denominazione'],
    condizione="NEW.Tipologia = '04' AND OLD.Denominazione IS DISTINCT FROM NEW.Denominazione")

# --- detail tables ---------------------------------------------------------------------------

RESTI = {
    'Istituti': [
        'UPDATE ComplessiDoc SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto',
        'UPDATE ComplessiDoc SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto',
        'UPDATE Inventari SET ID_IstitutoSede = NULL WHERE ID_IstitutoSede = OLD.ID_Istituto',
        'UPDATE Inventari SET ID_IstitutoMag = NULL WHERE ID_IstitutoMag = OLD.ID_Istituto',
    ],
    'ComplessiDoc': [
        'DELETE FROM ComplessiDocDenominazioni WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc',
        'DELETE FROM ComplessiDocSoggetti WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc',
        'UPDATE RigheVersamento SET ID_ComplessoDoc = 0 WHERE ID_ComplessoDoc = OLD.ID_ComplessoDoc',
        'UPDATE Istituti SET NumeroComplessi = NumeroComplessi - 1 WHERE ID_Istituto = OLD.ID_Istituto',
    ],
    'Inventari': [
        'DELETE FROM InventariDenominazioni WHERE ID_Inventario = OLD.ID_Inventario',
        'UPDATE Istituti SET NumeroInventari = NumeroInventari - 1 WHERE ID_Istituto = OLD.ID_Istituto',
    ],
    'Versamenti': ['DELETE FROM RigheVersamento WHERE ID_Versamento = OLD.ID_Versamento'],
    'Pergamene': [
        'DELETE FROM %s WHERE ID_Pergamena = OLD.ID_Pergamena' % t
        for t in ('PGSupporti', 'PGTraditio', 'PGEleGrafici', 'PGNoteStoriche', 'PGNotazioni',
                  'PGAltreSegnature', 'PGAntroponimi', 'PGToponimi', 'PGSigilli')
    ] + ['UPDATE Inventari SET NumeroPergamene = NumeroPergamene - 1 '
         'WHERE ID_Inventario = OLD.ID_Inventario'],
    'Sigilli': [
        'DELETE FROM SGTipo WHERE ID_Sigillo = OLD.ID_Sigillo',
        'DELETE FROM SGTitolari WHERE ID_Sigillo = OLD.ID_Sigillo',
        'DELETE FROM PGSigilli WHERE ID_Sigillo = OLD.ID_Sigillo',
        'UPDATE Inventari SET NumeroSigilli = NumeroSigilli - 1 WHERE ID_Inventario = OLD.ID_Inventario',
    ],
    'DatiInventariali': [
        'DELETE FROM %s WHERE ID_DatoInventariale = OLD.ID_DatoInventariale' % t
        for t in ('DICoseNotevoli', 'DIAntroponimi', 'DIToponimi', 'DatiInventarialiSoggetti')
    ] + ['UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali - 1 '
         'WHERE ID_Inventario = OLD.ID_Inventario'],
}

CONTATORI_INSERIMENTO = {
    'ComplessiDoc': 'UPDATE Istituti SET NumeroComplessi = NumeroComplessi + 1 WHERE ID_Istituto = NEW.ID_Istituto',
    'Inventari': 'UPDATE Istituti SET NumeroInventari = NumeroInventari + 1 WHERE ID_Istituto = NEW.ID_Istituto',
    'Pergamene': 'UPDATE Inventari SET NumeroPergamene = NumeroPergamene + 1 WHERE ID_Inventario = NEW.ID_Inventario',
    'Sigilli': 'UPDATE Inventari SET NumeroSigilli = NumeroSigilli + 1 WHERE ID_Inventario = NEW.ID_Inventario',
    'DatiInventariali': 'UPDATE Inventari SET NumeroDatiInventariali = NumeroDatiInventariali + 1 WHERE ID_Inventario = NEW.ID_Inventario',
}
CONTATORI_SPOSTAMENTO = {
    'ComplessiDoc': ('Istituti', 'NumeroComplessi', 'ID_Istituto'),
    'Inventari': ('Istituti', 'NumeroInventari', 'ID_Istituto'),
    'Pergamene': ('Inventari', 'NumeroPergamene', 'ID_Inventario'),
    'Sigilli': ('Inventari', 'NumeroSigilli', 'ID_Inventario'),
    'DatiInventariali': ('Inventari', 'NumeroDatiInventariali', 'ID_Inventario'),
}


def apporto(riga, figura):
    """What a complesso (riga: F, OLD or NEW) brings to its parent's figure: its own figure
    when it has one, not Null and not 0, otherwise the figure it carries up."""
    return 'COALESCE(NULLIF(%s.%s, 0), %s.%sFigli, 0)' % (riga, figura, riga, figura)


SOMMATE = ['Quantita', 'MetriLineari', 'Valore']

# The carried-up figures of a complesso's parent, from its direct child complessi, in one
# pass over the children.
RICALCOLA_PADRE = (
    'UPDATE ComplessiDoc SET (QuantitaFigli, MetriLineariFigli, ValoreFigli, DataInizioFigli, '
    'DataFineFigli) = (SELECT '
    + ''.join('COALESCE(SUM(%s), 0), ' % apporto('F', f) for f in SOMMATE) +
    '{MIN2(MIN(F.DataInizio)|MIN(F.DataInizioFigli))}, '
    '{MAX2(MAX(F.DataFine)|MAX(F.DataFineFigli))} '
    'FROM Elementi E JOIN ComplessiDoc F ON F.ID_Elemento = E.ID_Elemento '
    'WHERE E.ID_ElementoPadre = ComplessiDoc.ID_Elemento) '
    'WHERE ID_Elemento = %s')
FIGURE = ['Quantita', 'QuantitaFigli', 'MetriLineari', 'MetriLineariFigli', 'Valore', 'ValoreFigli',
          'DataInizio', 'DataFine', 'DataInizioFigli', 'DataFineFigli']
K = ['Quantita', 'KConservazione', 'KPeriodo', 'KSupporto', 'KRilevanza', 'KRarita']
VALORE = ' * '.join('COALESCE(%s, 0)' % k for k in K)

for tr in TRIGGER:
    tr.istruzioni = [(('sql', RICALCOLA_PADRE % 'OLD.ID_ElementoPadre')
                      if i == ('sql', 'RICALCOLA_PADRE_OLD') else i) for i in tr.istruzioni]

for tipo, tab, chiave, nome in DETTAGLI:
    # Deleting a detail row takes its element, its links and what hangs on it.
    istruzioni = []
    if tab == 'ComplessiDoc':
        istruzioni.append(('sql', RICALCOLA_PADRE % PADRE_OLD))
    istruzioni += [('sql', s) for s in RESTI.get(tab, [])]
    istruzioni += [
        ('sql', 'DELETE FROM Links WHERE ID_Elemento = OLD.ID_Elemento OR ID_ElementoLink = '
         'OLD.ID_Elemento'),
        ('sql', 'DELETE FROM Elementi WHERE ID_Elemento = OLD.ID_Elemento'),
    ]
    trigger('%s_Eliminazione' % tab, tab, 'AFTER', 'DELETE', istruzioni)

    if tab in CONTATORI_INSERIMENTO:
        trigger('%s_Inserimento' % tab, tab, 'AFTER', 'INSERT',
                [('sql', CONTATORI_INSERIMENTO[tab])])
        padre, contatore, colonna = CONTATORI_SPOSTAMENTO[tab]
        trigger('%s_Spostamento' % tab, tab, 'AFTER', 'UPDATE', [
            ('sql', 'UPDATE %s SET %s = %s - 1 WHERE %s = OLD.%s' % (padre, contatore, contatore, colonna, colonna)),
            ('sql', 'UPDATE %s SET %s = %s + 1 WHERE %s = NEW.%s' % (padre, contatore, contatore, colonna, colonna)),
        ], colonne=[colonna], condizione='OLD.%s IS DISTINCT FROM NEW.%s' % (colonna, colonna))

    if nome:
        # The element's name follows the detail's.
        istruzioni = [('sql', 'UPDATE Elementi SET Denominazione = COALESCE(NEW.%s, \'\') '
                       'WHERE ID_Elemento = NEW.ID_Elemento' % nome)]
        if tab in ('Istituti', 'ComplessiDoc', 'Inventari'):
            istruzioni.append(('sql', 'UPDATE %s SET DenomCompleta = %s WHERE ID_Elemento = '
                               'NEW.ID_Elemento' % (tab, denom_completa(
                                   DENOM_COMPLETA_DEL_PADRE.replace('NEW.ID_ElementoPadre', PADRE_NEW),
                                   'NEW.Denominazione'))))
        trigger('%s_Nome' % tab, tab, 'AFTER', 'UPDATE', istruzioni, colonne=[nome],
                condizione='OLD.%s IS DISTINCT FROM NEW.%s' % (nome, nome))

# The full names of the sons follow their parent's.
for tab in ('Istituti', 'ComplessiDoc', 'Inventari'):
    trigger('%s_DenomCompleta' % tab, tab, 'AFTER', 'UPDATE', [
        ('sql', "UPDATE %s SET DenomCompleta = COALESCE(NEW.DenomCompleta || ' > ', '') || "
         "Denominazione WHERE ID_Elemento IN (SELECT ID_Elemento FROM Elementi WHERE "
         "ID_ElementoPadre = NEW.ID_Elemento)" % figlio)
        for figlio in ('Istituti', 'ComplessiDoc', 'Inventari')
    ], colonne=['DenomCompleta'], condizione='OLD.DenomCompleta IS DISTINCT FROM NEW.DenomCompleta')

trigger('Istituti_Codici', 'Istituti', 'AFTER', 'UPDATE', [
    ('sql', 'UPDATE ComplessiDoc SET ISAD_Codice = NEW.ISAD_Codice, ISAD_Sigla = NEW.ISAD_Sigla '
     'WHERE ID_Istituto = NEW.ID_Istituto'),
], colonne=['ISAD_Codice', 'ISAD_Sigla'],
    condizione='OLD.ISAD_Codice IS DISTINCT FROM NEW.ISAD_Codice OR OLD.ISAD_Sigla IS DISTINCT FROM NEW.ISAD_Sigla')

# Worth and carried-up figures of complessi.
trigger('ComplessiDoc_Valore', 'ComplessiDoc', 'AFTER', 'UPDATE', [
    ('sql', 'UPDATE ComplessiDoc SET Valore = %s WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc' % VALORE),
], colonne=K, condizione=' OR '.join('OLD.%s IS DISTINCT FROM NEW.%s' % (k, k) for k in K))
# The parent is derived again only when what this complesso brings to it has changed, so a
# change deep down stops at the first level that declares its own figures and dates.
trigger('ComplessiDoc_Riporto', 'ComplessiDoc', 'AFTER', 'UPDATE', [
    ('sql', RICALCOLA_PADRE % PADRE_NEW),
], colonne=FIGURE, condizione=' OR '.join(
    ['%s <> %s' % (apporto('OLD', f), apporto('NEW', f)) for f in SOMMATE]
    + ['OLD.%s IS DISTINCT FROM NEW.%s' % (f, f)
       for f in ('DataInizio', 'DataFine', 'DataInizioFigli', 'DataFineFigli')]))
# A new complesso brings its figures to its parent (an import, say, gives them at once).
trigger('ComplessiDoc_Riporto_Nuovo', 'ComplessiDoc', 'AFTER', 'INSERT', [
    ('sql', 'UPDATE ComplessiDoc SET Valore = %s WHERE ID_ComplessoDoc = NEW.ID_ComplessoDoc '
     'AND Valore IS DISTINCT FROM %s' % (VALORE, VALORE)),
    ('sql', RICALCOLA_PADRE % PADRE_NEW),
], condizione=' OR '.join('COALESCE(NEW.%s, 0) <> 0' % f for f in FIGURE + K[1:]))

# --- Links counters --------------------------------------------------------------------------

TIPO = "(SELECT Tipologia FROM Elementi WHERE ID_Elemento = %s)"
for evento, riga, segno in (('INSERT', 'NEW', '+'), ('DELETE', 'OLD', '-')):
    trigger('Links_%s' % ('Inserimento' if evento == 'INSERT' else 'Eliminazione'), 'Links', 'AFTER', evento, [
        ('sql', "UPDATE ComplessiDoc SET NumeroInventari = NumeroInventari %s 1 WHERE ID_Elemento = "
         "%s.ID_Elemento AND %s = '03'" % (segno, riga, TIPO % ('%s.ID_ElementoLink' % riga))),
        ('sql', "UPDATE Inventari SET NumeroComplessi = NumeroComplessi %s 1 WHERE ID_Elemento = "
         "%s.ID_ElementoLink AND %s = '02'" % (segno, riga, TIPO % ('%s.ID_Elemento' % riga))),
    ])

# --- producers -------------------------------------------------------------------------------

PRODUTTORI = [('P', 'Persone', 'ID_Persona', 'Nome', 'PersoneDenominazioni'),
              ('F', 'Famiglie', 'ID_Famiglia', 'Nome', 'FamiglieDenominazioni'),
              ('E', 'Enti', 'ID_Ente', 'Denominazione', 'EntiDenominazioni')]
trigger('Soggetti_Inserimento', 'Soggetti', 'AFTER', 'INSERT', [
    ('insert', tab, {chiave: 'NEW.ID_Soggetto', 'ID_Soggetto': 'NEW.ID_Soggetto', nome: 'NEW.Denominazione',
                     'Code': 'COALESCE(NEW.Code, %s)' % CODICE_SITO, 'ISAD_Nazione': "'IT'",
                     'ISAD_Codice': isad_sito('ISAD_Codice'), 'ISAD_Sigla': isad_sito('ISAD_Sigla')},
     "NEW.TipoSoggetto = '%s' AND NOT EXISTS (SELECT 1 FROM %s WHERE ID_Soggetto = NEW.ID_Soggetto)"
     % (tipo, tab))
    for tipo, tab, chiave, nome, _ in PRODUTTORI
])
trigger('Soggetti_Eliminazione', 'Soggetti', 'AFTER', 'DELETE',
        [('sql', 'DELETE FROM %s WHERE ID_Soggetto = OLD.ID_Soggetto' % tab)
         for _, tab, _, _, _ in PRODUTTORI] +
        [('sql', 'DELETE FROM ComplessiDocSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto'),
         ('sql', 'DELETE FROM DatiInventarialiSoggetti WHERE ID_Soggetto = OLD.ID_Soggetto')])
for tipo, tab, chiave, nome, altre in PRODUTTORI:
    trigger('%s_Nome' % tab, tab, 'AFTER', 'UPDATE', [
        ('sql', "UPDATE Soggetti SET Denominazione = COALESCE(NEW.%s, '') WHERE ID_Soggetto = NEW.ID_Soggetto" % nome),
    ], colonne=[nome], condizione='OLD.%s IS DISTINCT FROM NEW.%s' % (nome, nome))
    trigger('%s_Codici' % tab, tab, 'AFTER', 'UPDATE', [
        ('sql', "UPDATE %s SET ISAD_Nazione = 'IT', ISAD_Codice = %s, ISAD_Sigla = %s WHERE %s = NEW.%s"
         % (tab, isad_sito('ISAD_Codice'), isad_sito('ISAD_Sigla'), chiave, chiave)),
    ], colonne=[nome], condizione='NEW.ISAD_Codice IS NULL')
    trigger('%s_Eliminazione' % tab, tab, 'AFTER', 'DELETE', [
        ('sql', 'DELETE FROM %s WHERE %s = OLD.%s' % (altre, chiave, chiave)),
        ('sql', 'DELETE FROM Soggetti WHERE ID_Soggetto = OLD.ID_Soggetto'),
    ])

# --- access points ---------------------------------------------------------------------------

for tab, chiave, legami in (('Antroponimi', 'ID_Antroponimo', ('PGAntroponimi', 'DIAntroponimi')),
                            ('Toponimi', 'ID_Toponimo', ('PGToponimi', 'DIToponimi')),
                            ('Titolari', 'ID_Titolare', ('SGTitolari',))):
    trigger('%s_Eliminazione' % tab, tab, 'AFTER', 'DELETE',
            [('sql', 'DELETE FROM %s WHERE %s = OLD.%s' % (l, chiave, chiave)) for l in legami])

# --- Code from the site ----------------------------------------------------------------------
# Rows that the program inserts directly get the site's code when they bring none. (Detail and
# kind rows made by triggers get it in their insert.)
for t in T:
    if not t.codice or t.nome in ('Elementi',) or t.nome in [d[1] for d in DETTAGLI] \
            or t.nome in [p[1] for p in PRODUTTORI] or t.nome in ('PGSupporti', 'PGTraditio',
                                                                   'PGEleGrafici', 'PGNoteStoriche', 'SGTipo'):
        continue
    condizione_riga = ' AND '.join('%s = NEW.%s' % (k, k) for k in t.chiave)
    trigger('%s_Codice' % t.nome, t.nome, 'AFTER', 'INSERT', [
        ('sql', 'UPDATE %s SET Code = %s WHERE %s' % (t.nome, CODICE_SITO, condizione_riga)),
    ], condizione='NEW.Code IS NULL')

# The four rows of a parchment and the row of a seal.
trigger('Pergamene_Righe', 'Pergamene', 'AFTER', 'INSERT', [
    ('insert', t, {'ID_Pergamena': 'NEW.ID_Pergamena', 'Code': 'NEW.Code'},
     'NOT EXISTS (SELECT 1 FROM %s WHERE ID_Pergamena = NEW.ID_Pergamena)' % t)
    for t in ('PGSupporti', 'PGTraditio', 'PGEleGrafici', 'PGNoteStoriche')
])
trigger('Sigilli_Righe', 'Sigilli', 'AFTER', 'INSERT', [
    ('insert', 'SGTipo', {'ID_Sigillo': 'NEW.ID_Sigillo', 'Code': 'NEW.Code'},
     'NOT EXISTS (SELECT 1 FROM SGTipo WHERE ID_Sigillo = NEW.ID_Sigillo)'),
])

# --------------------------------------------------------------------------------------------
# Views
# --------------------------------------------------------------------------------------------


def ordinamento_numerico(d: Dialetto, espressione: str) -> str:
    if d.nome == 'sqlite':
        return ("CASE WHEN TRIM(%s) <> '' AND TRIM(%s) NOT GLOB '*[^0-9]*' "
                "THEN CAST(TRIM(%s) AS INTEGER) END" % (espressione, espressione, espressione))
    return "CASE WHEN BTRIM(%s) ~ '^[0-9]+$' THEN CAST(BTRIM(%s) AS INTEGER) END" % (
        espressione, espressione)


def colonne_prefisso(alias, prefisso, tabella, escluse=()):
    return ['%s.%s AS %s_%s' % (alias, c.nome, prefisso, c.nome) for c in TABELLE[tabella].colonne
            if c.nome not in escluse]


def viste(d: Dialetto) -> list[str]:
    elem = colonne_prefisso('E', 'ELEM', 'Elementi')
    ist = colonne_prefisso('IST', 'IST', 'Istituti')
    cd = colonne_prefisso('CD', 'CD', 'ComplessiDoc')
    inv = colonne_prefisso('INV', 'INV', 'Inventari')
    dati = colonne_prefisso('DI', 'DATIINV', 'DatiInventariali', escluse=('Ordinamento',)) + [
        '%s AS DATIINV_Ordinamento' % ordinamento_numerico(d, 'DI.Ordinamento')]
    pg = colonne_prefisso('PG', 'PG', 'Pergamene')
    sg = colonne_prefisso('SG', 'SG', 'Sigilli')
    ver = colonne_prefisso('VER', 'VER', 'Versamenti')

    def vista(nome, colonne, corpo):
        return 'CREATE VIEW %s AS\nSELECT\n    %s\n%s' % (nome, ',\n    '.join(colonne), corpo)

    out = [
        vista('AlberoGlobale', elem + ist + cd + inv + ver,
              'FROM Elementi E\n'
              'LEFT JOIN Istituti IST ON IST.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN ComplessiDoc CD ON CD.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN Inventari INV ON INV.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN Versamenti VER ON VER.ID_Elemento = E.ID_Elemento'),
        vista('AlberoPergamene', elem + pg + sg,
              'FROM Elementi E\n'
              'LEFT JOIN Pergamene PG ON PG.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN Sigilli SG ON SG.ID_Elemento = E.ID_Elemento\n'
              "WHERE E.Tipologia IN ('05', '06')"),
        vista('AlberoDatiInventariali', elem + inv + dati + pg + sg,
              'FROM Elementi E\n'
              'LEFT JOIN Inventari INV ON INV.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN DatiInventariali DI ON DI.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN Pergamene PG ON PG.ID_Elemento = E.ID_Elemento\n'
              'LEFT JOIN Sigilli SG ON SG.ID_Elemento = E.ID_Elemento\n'
              "WHERE E.Tipologia IN ('03', '05', '06', '07')"),
        vista('v_istituti', elem + ist,
              'FROM Elementi E\nJOIN Istituti IST ON IST.ID_Elemento = E.ID_Elemento'),
    ]
    sog = colonne_prefisso('SOG', 'SOG', 'Soggetti')
    prs = colonne_prefisso('PRS', 'PRS', 'Persone')
    fmg = colonne_prefisso('FMG', 'FMG', 'Famiglie')
    en = colonne_prefisso('EN', 'EN', 'Enti')
    produttori = ('JOIN Soggetti SOG ON SOG.ID_Soggetto = L.ID_Soggetto\n'
                  'LEFT JOIN Persone PRS ON PRS.ID_Soggetto = SOG.ID_Soggetto\n'
                  'LEFT JOIN Famiglie FMG ON FMG.ID_Soggetto = SOG.ID_Soggetto\n'
                  'LEFT JOIN Enti EN ON EN.ID_Soggetto = SOG.ID_Soggetto')
    out.append(vista('V_ComplessiDocSoggetti',
                     ['CD.ID_Elemento AS CD_ID_Elemento', 'CD.ID_ComplessoDoc AS CD_ID_ComplessoDoc',
                      'CD.Denominazione AS CD_Denominazione'] + sog + prs + fmg + en,
                     'FROM ComplessiDocSoggetti L\n'
                     'JOIN ComplessiDoc CD ON CD.ID_ComplessoDoc = L.ID_ComplessoDoc\n' + produttori))
    out.append(vista('V_DatiInventarialiSoggetti',
                     ['DI.ID_Elemento AS DI_ID_Elemento',
                      'DI.ID_DatoInventariale AS DI_ID_DatoInventariale',
                      'DI.Titolo AS DI_Titolo'] + sog + prs + fmg + en,
                     'FROM DatiInventarialiSoggetti L\n'
                     'JOIN DatiInventariali DI ON DI.ID_DatoInventariale = L.ID_DatoInventariale\n'
                     + produttori))
    return out


# --------------------------------------------------------------------------------------------
# Writing
# --------------------------------------------------------------------------------------------


def espandi(d: Dialetto, testo: str) -> str:
    def sostituisci(m):
        funzione, argomenti = m.group(1), m.group(2)
        a, b = argomenti.split('|')
        return d.min2(a, b) if funzione == 'MIN2' else d.max2(a, b)

    # Innermost first: the arguments hold no braces.
    precedente = None
    while precedente != testo:
        precedente = testo
        testo = re.sub(r'\{(MIN2|MAX2)\(([^{}]*)\)\}', sostituisci, testo)
    return testo


def prossima_chiave(tab: str, chiave: str) -> str:
    # The greatest key of the range read backwards from the top of the range: one index step,
    # where MAX() over a range would read the whole range.
    return ('(SELECT COALESCE((SELECT %s FROM %s WHERE %s BETWEEN (SELECT ID_Start FROM Config) '
            'AND (SELECT ID_End FROM Config) ORDER BY %s DESC LIMIT 1), '
            '(SELECT ID_Start FROM Config) - 1) + 1)' % (chiave, tab, chiave, chiave))


def istruzione(d: Dialetto, ist) -> str:
    genere = ist[0]
    if genere == 'sql':
        return espandi(d, ist[1]) + ';'
    if genere == 'rifiuta':
        cond, messaggio = ist[1], ist[2].replace("'", "''")
        if d.nome == 'sqlite':
            return "SELECT RAISE(ABORT, '%s') WHERE %s;" % (messaggio, cond)
        return "IF %s THEN\n        RAISE EXCEPTION '%s';\n    END IF;" % (cond, messaggio)
    if genere == 'insert':
        tab, valori, cond = ist[1], dict(ist[2]), ist[3]
        chiave = TABELLE[tab].chiave_generata
        generata = d.nome == 'sqlite' and chiave and chiave not in valori
        if generata:
            valori = {chiave: prossima_chiave(tab, chiave), **valori}
        colonne = ', '.join(valori)
        espressioni = ', '.join(espandi(d, v) for v in valori.values())
        if d.nome == 'postgresql':
            # Planned only when its condition holds: PostgreSQL casts the trigger's values to
            # the columns when it plans, so a name longer than another kind's name column
            # (a finding aid's title of 65 characters against Pergamene.Segnatura) would be
            # refused by the insert of a kind it is not.
            return 'IF %s THEN\n        INSERT INTO %s (%s)\n        SELECT %s;\n    END IF;' % (
                cond, tab, colonne, espressioni)
        testo = 'INSERT INTO %s (%s)\n        SELECT %s\n        WHERE %s;' % (tab, colonne, espressioni, cond)
        if generata:
            testo = ("SELECT RAISE(ABORT, 'Intervallo delle chiavi di %s esaurito (Config.ID_End).') "
                     'WHERE (%s) AND %s > (SELECT ID_End FROM Config);\n    ' % (tab, cond, prossima_chiave(tab, chiave))
                     + testo)
        return testo
    raise ValueError(genere)


def crea_tabella(d: Dialetto, t: Tabella, se_manca: bool = False) -> str:
    """CREATE TABLE and its indexes; se_manca: only what is missing (the upgrade)."""
    nuova = 'CREATE TABLE IF NOT EXISTS' if se_manca else 'CREATE TABLE'
    nuovo_indice = 'INDEX IF NOT EXISTS' if se_manca else 'INDEX'
    righe = []
    for c in t.colonne:
        riga = '    %s %s' % (c.nome, d.tipo(c))
        if not c.nullo or c.tipo == 'id':
            riga += ' NOT NULL'
        if c.predefinito is not None:
            riga += ' DEFAULT %s' % c.predefinito
        righe.append(riga)
    if t.codice:
        righe.append('    Code %s' % d.tipo(Colonna('Code', 'testo:10')))
    righe.append('    PRIMARY KEY (%s)' % ', '.join(t.chiave))
    testo = '%s %s (\n%s\n);\n' % (nuova, t.nome, ',\n'.join(righe))
    if se_manca and d.nome == 'postgresql':
        # A table of an earlier version gets the columns it lacks.
        aggiunte = [r.strip() for r, c in zip(righe, t.colonne) if c.tipo != 'id']
        if t.codice:
            aggiunte.append(righe[len(t.colonne)].strip())
        testo += 'ALTER TABLE %s\n    %s;\n' % (
            t.nome, ',\n    '.join('ADD COLUMN IF NOT EXISTS ' + a for a in aggiunte))
    for i, colonne in enumerate(t.unici):
        testo += 'CREATE UNIQUE %s %s_U%d ON %s (%s);\n' % (nuovo_indice, t.nome, i + 1, t.nome, ', '.join(colonne))
    for colonne in t.indici:
        testo += 'CREATE %s %s_%s ON %s (%s);\n' % (nuovo_indice, t.nome, '_'.join(colonne), t.nome, ', '.join(colonne))
    return testo


def crea_trigger_sqlite(tr: Trigger) -> str:
    evento = tr.evento
    if tr.colonne:
        evento += ' OF ' + ', '.join(tr.colonne)
    condizione = "NOT EXISTS (SELECT 1 FROM TriggerSospesi WHERE Tabella = '%s')" % tr.tabella
    if tr.condizione:
        condizione += ' AND (%s)' % tr.condizione
    corpo = '\n    '.join(istruzione(SQLite(), i) for i in tr.istruzioni)
    return 'CREATE TRIGGER %s %s %s ON %s FOR EACH ROW\nWHEN %s\nBEGIN\n    %s\nEND;\n' % (
        tr.nome, tr.momento, evento, tr.tabella, condizione, corpo)


def crea_trigger_pg(tr: Trigger, sostituisci: bool = False) -> str:
    evento = tr.evento
    if tr.colonne:
        evento += ' OF ' + ', '.join(tr.colonne)
    corpo = '\n    '.join(istruzione(PostgreSQL(), i) for i in tr.istruzioni)
    if tr.condizione:
        corpo = 'IF %s THEN\n    %s\n    END IF;' % (tr.condizione, corpo.replace('\n', '\n    '))
    ritorno = 'OLD' if tr.momento == 'BEFORE' else 'NULL'
    funzione = 'tabellion_%s' % tr.nome.lower()
    crea = 'CREATE OR REPLACE' if sostituisci else 'CREATE'
    return ('%s FUNCTION %s() RETURNS trigger LANGUAGE plpgsql AS $$\nBEGIN\n    %s\n'
            '    RETURN %s;\nEND\n$$;\n'
            '%s TRIGGER %s %s %s ON %s FOR EACH ROW EXECUTE FUNCTION %s();\n') % (
        crea, funzione, corpo, ritorno, crea, tr.nome, tr.momento, evento, tr.tabella, funzione)


# Triggers of earlier versions that the schema no longer has, as (name, table): the upgrade
# drops them.
TRIGGER_DISMESSI: list[tuple[str, str]] = [
    # Provincie, a reference list, no longer carries the site's code.
    ('Provincie_Codice', 'Provincie'),
]


def intestazione(d: Dialetto) -> str:
    decisioni = __doc__.split('of each generated script):')[1].strip()
    return ('%s\n'
            '-- Tabellion Archivista: the schema of a site\'s database on %s, version 3.2 and later.\n'
            '-- Written by db/genera_schema.py: change that file and run it again, not this one.\n'
            '-- Run on an empty database, e.g.:\n'
            '--   tabellion-sql --crea --codice SITO1 --id-inizio 1000000 --id-fine 1999999 \\\n'
            '--       -U utente -P password -S server -d NomeDatabase -i schema.sql\n'
            '-- Names are unquoted, so any spelling of a table or column reaches it.\n--\n'
            '-- Decisions:\n%s\n\n') % (
        riga_server(d), d.descrizione,
        '\n'.join('-- ' + riga if riga else '--' for riga in decisioni.splitlines()))


def riga_server(d: Dialetto) -> str:
    """The line by which tabellion-sql knows a script's server: what follows it, up to the next
    such line, runs only on that server, and a script with none of its statements for the
    connection's server is refused."""
    return '-- Server: %s' % d.descrizione


FUNZIONI_PG = r'''
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
'''

# The upgrade on PostgreSQL begins here: the login must be able to act as the database's owner
# (tabellion-sql then runs the script as that role), and the owner must own every table and
# view, or the upgrade could not replace them.
GUARDIA_PG = r'''SET client_min_messages = warning;
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
'''

# The upgrade on PostgreSQL ends here: the groups that write the archive (those that may insert
# into Elementi) keep their rights on what the upgrade made.
DIRITTI_PG = r'''DO $$
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
'''


def scrivi(d: Dialetto, percorso: str):
    parti = [intestazione(d)]
    if d.nome == 'sqlite':
        parti.append('-- The import switches a table\'s triggers off with a row here.\n'
                     'CREATE TABLE TriggerSospesi (\n    Tabella VARCHAR(64) NOT NULL COLLATE NOCASE PRIMARY KEY\n);\n')
    for t in T:
        parti.append(crea_tabella(d, t))
    parti.append('\n-- Views: one row per element, the details left-joined, every column prefixed.\n')
    for v in viste(d):
        parti.append(v + ';\n')
    parti.append('\n-- The database\'s duties.\n')
    for tr in TRIGGER:
        parti.append(crea_trigger_sqlite(tr) if d.nome == 'sqlite' else crea_trigger_pg(tr))
    if d.nome == 'sqlite':
        parti.append("\n-- The full-text index of the web index (rebuilt with it).\n"
                     "CREATE VIRTUAL TABLE IndiceWebTesto USING fts5(Denominazione, DenomCompleta, "
                     "content='IndiceWeb', content_rowid='ID_Elemento', "
                     "tokenize='unicode61 remove_diacritics 2');\n")
    else:
        parti.append("\n-- The full-text index of the web index (rebuilt with it).\n"
                     "ALTER TABLE IndiceWeb ADD COLUMN Testo tsvector;\n"
                     "CREATE INDEX IndiceWeb_Testo ON IndiceWeb USING GIN (Testo);\n")
    if d.nome == 'postgresql':
        parti.append(FUNZIONI_PG)
    parti.append("\n-- The site's settings: a placeholder code until the site's identity is given.\n"
                 + riga_config())
    with open(percorso, 'w', encoding='utf-8', newline='\n') as f:
        f.write('\n'.join(parti))


# The code of a database whose site has no identity yet (store/IdentitaSito: the same text).
CODICE_PROVVISORIO = 'SITO'


def riga_config(se_manca: bool = False) -> str:
    valori = "'%s', NULL, %d, 1, 999999999, 0, NULL" % (CODICE_PROVVISORIO, VERSIONE_SCHEMI)
    if se_manca:
        valori = 'SELECT %s WHERE NOT EXISTS (SELECT 1 FROM Config)' % valori
    else:
        valori = 'VALUES (%s)' % valori
    return ("INSERT INTO Config (Code, Descrizione, Versione, ID_Start, ID_End, Valore, DataValore)\n"
            "%s;\n" % valori)


# Columns whose kind an earlier version had otherwise, as (table, column): the upgrade gives
# them the kind of the description, their values kept (rounded to whole numbers).
CAMBI_DI_TIPO: list[tuple[str, str]] = [
    ('Versamenti', 'NumeroRPC'),
]


def cambi_di_tipo(d: Dialetto) -> str:
    """The upgrade's change of kind of the columns of CAMBI_DI_TIPO. The views over such a table
    are dropped first (the upgrade makes them again). PostgreSQL changes a column only where
    its kind differs. SQLite, which cannot change a column, makes the table anew and copies its
    rows (its triggers go with it and the upgrade makes them again)."""
    parti = []
    for tab in dict.fromkeys(t for t, _ in CAMBI_DI_TIPO):
        t = TABELLE[tab]
        cambiate = [c for t2, c in CAMBI_DI_TIPO if t2 == tab]
        dipendenti = [v.split()[2] for v in viste(d) if re.search(r'\b%s\b' % tab, v)]
        if d.nome == 'postgresql':
            for nome in cambiate:
                c = next(c for c in t.colonne if c.nome == nome)
                tipo = d.tipo(c)
                parti.append(
                    'DO $$\nBEGIN\n'
                    '    IF EXISTS (SELECT 1 FROM information_schema.columns\n'
                    "               WHERE table_schema = current_schema() AND table_name = '%s'\n"
                    "                 AND column_name = '%s' AND data_type <> '%s') THEN\n"
                    '%s'
                    '        ALTER TABLE %s ALTER COLUMN %s TYPE %s USING CAST(ROUND(%s) AS %s);\n'
                    '    END IF;\nEND\n$$;\n' % (
                        tab.lower(), nome.lower(), tipo.lower(),
                        ''.join('        DROP VIEW IF EXISTS %s;\n' % v for v in dipendenti),
                        tab, nome, tipo, nome, tipo))
        else:
            colonne = [c.nome for c in t.colonne] + (['Code'] if t.codice else [])
            valori = ['CAST(ROUND(%s) AS INTEGER)' % c if c in cambiate else c for c in colonne]
            parti.append(''.join('DROP VIEW IF EXISTS %s;\n' % v for v in dipendenti))
            parti.append('CREATE TEMP TABLE %s_Copia AS SELECT * FROM %s;\nDROP TABLE %s;\n'
                         % (tab, tab, tab))
            parti.append(crea_tabella(d, t))
            parti.append('INSERT INTO %s (%s)\nSELECT %s FROM temp.%s_Copia;\n'
                         'DROP TABLE temp.%s_Copia;\n'
                         % (tab, ', '.join(colonne), ', '.join(valori), tab, tab))
    return ''.join(parti)


def aggiornamento(d: Dialetto) -> str:
    """The upgrade on one server: what a database of any earlier version lacks is made (tables,
    columns on PostgreSQL, indexes), views, triggers and functions are written anew, and
    Versione becomes the schema's; on a current database it changes nothing."""
    parti = [riga_server(d)]
    if d.nome == 'postgresql':
        parti.append(GUARDIA_PG)
    else:
        parti.append('CREATE TABLE IF NOT EXISTS TriggerSospesi (\n'
                     '    Tabella VARCHAR(64) NOT NULL COLLATE NOCASE PRIMARY KEY\n);\n')
    for t in T:
        parti.append(crea_tabella(d, t, se_manca=True))
    parti.append(cambi_di_tipo(d))
    for v in viste(d):
        nome = v.split()[2]
        if d.nome == 'postgresql':
            parti.append(v.replace('CREATE VIEW', 'CREATE OR REPLACE VIEW', 1) + ';\n')
        else:
            parti.append('DROP VIEW IF EXISTS %s;\n%s;\n' % (nome, v))
    for nome, tabella in TRIGGER_DISMESSI:
        if d.nome == 'postgresql':
            parti.append('DROP TRIGGER IF EXISTS %s ON %s;\nDROP FUNCTION IF EXISTS tabellion_%s();\n'
                         % (nome, tabella, nome.lower()))
        else:
            parti.append('DROP TRIGGER IF EXISTS %s;\n' % nome)
    for tr in TRIGGER:
        if d.nome == 'postgresql':
            parti.append(crea_trigger_pg(tr, sostituisci=True))
        else:
            parti.append('DROP TRIGGER IF EXISTS %s;\n%s' % (tr.nome, crea_trigger_sqlite(tr)))
    if d.nome == 'sqlite':
        parti.append("CREATE VIRTUAL TABLE IF NOT EXISTS IndiceWebTesto USING fts5(Denominazione, "
                     "DenomCompleta, content='IndiceWeb', content_rowid='ID_Elemento', "
                     "tokenize='unicode61 remove_diacritics 2');\n")
    else:
        parti.append("ALTER TABLE IndiceWeb ADD COLUMN IF NOT EXISTS Testo tsvector;\n"
                     "CREATE INDEX IF NOT EXISTS IndiceWeb_Testo ON IndiceWeb USING GIN (Testo);\n")
        parti.append(FUNZIONI_PG)
    parti.append(riga_config(se_manca=True))
    parti.append('UPDATE Config SET Versione = %d WHERE Versione IS NULL OR Versione < %d;\n'
                 % (VERSIONE_SCHEMI, VERSIONE_SCHEMI))
    if d.nome == 'postgresql':
        parti.append('SELECT tabellion_allinea_chiavi();\n')
        parti.append(DIRITTI_PG)
    return '\n'.join(parti)


def scrivi_aggiornamento(percorso: str):
    testa = ('-- Tabellion Archivista: the upgrade of a site\'s database to schema version %d, from\n'
             '-- any earlier version; on a current database it changes nothing. Run by tabellion-sql\n'
             '-- (menu Strumenti > Aggiorna versione, or by hand) under a login that may change the\n'
             '-- schema: on PostgreSQL the administrator\'s, which acts as the database\'s owner.\n'
             '-- tabellion-sql runs only the part of the connection\'s server.\n'
             '-- Written by db/genera_schema.py: change that file and run it again, not this one.\n\n'
             % VERSIONE_SCHEMI)
    with open(percorso, 'w', encoding='utf-8', newline='\n') as f:
        f.write(testa + aggiornamento(SQLite()) + '\n' + aggiornamento(PostgreSQL()))


# --------------------------------------------------------------------------------------------
# Exchange schema files
# --------------------------------------------------------------------------------------------

# The ADO DataTypeEnum value that a schema file gives for each column kind: adInteger 3,
# adBigInt 20, adDouble 5, adVarWChar 202, adLongVarWChar 203, adDBTimeStamp 135. Archival
# dates are whole numbers and travel as 3.
TIPO_ADO = {'id': 3, 'long': 3, 'long64': 20, 'yyyymmdd': 3, 'flag': 3, 'num': 5, 'data': 135,
            'memo': 203}

# The schema version: Config.Versione of a database of this schema, and of the exchange files.
VERSIONE_SCHEMI = 4


def tipo_ado(c: Colonna) -> int:
    if c.tipo.startswith('testo:'):
        return 202
    return TIPO_ADO[c.tipo]


def tabelle_scambiate() -> list[Tabella]:
    """The tables that travel between sites: those that carry Code, the mark of a row's home
    site. The reference lists loaded into every database (riferimenti.sql) carry none and stay
    home: each site has its own copy, and a sender's copy would clash with it."""
    return [t for t in T if t.codice]


def scrivi_schemi(cartella: str):
    """Writes <table>Sch.xml for every exchanged table: the columns that travel, in table
    order, without Code (the import adds it)."""
    os.makedirs(cartella, exist_ok=True)
    for t in tabelle_scambiate():
        colonne = [c for c in t.colonne if c.nome.lower() != 'code']
        righe = ['<?xml version="1.0" encoding="UTF-8"?>',
                 '<schema datafile="%s.xml" version="%d">' % (t.nome, VERSIONE_SCHEMI),
                 '\t<stru fieldcount="%d">' % len(colonne)]
        for c in colonne:
            righe.append('\t\t<field type="%d" pk="%d">%s</field>' % (
                tipo_ado(c), 1 if c.nome in t.chiave else 0, c.nome))
        righe += ['\t</stru>', '</schema>', '']
        with open(os.path.join(cartella, '%sSch.xml' % t.nome), 'w', encoding='utf-8',
                  newline='\r\n') as f:
            f.write('\n'.join(righe))


def genera(radice: str):
    """Writes every generated file below radice, the sources' root."""
    for cartella in ('db/sqlite', 'db/postgresql', 'site'):
        os.makedirs(os.path.join(radice, cartella), exist_ok=True)
    scrivi(SQLite(), os.path.join(radice, 'db', 'sqlite', 'schema.sql'))
    scrivi(PostgreSQL(), os.path.join(radice, 'db', 'postgresql', 'schema.sql'))
    scrivi_schemi(os.path.join(radice, 'site', 'Schemi'))
    scrivi_aggiornamento(os.path.join(radice, 'site', 'alter.sql'))


def controlla(radice: str) -> list[str]:
    """The generated files that differ from those below radice (or lack, or are too many)."""
    import filecmp
    import tempfile
    with tempfile.TemporaryDirectory() as nuova:
        genera(nuova)
        nomi = ['db/sqlite/schema.sql', 'db/postgresql/schema.sql', 'site/alter.sql']
        for cartella in (nuova, radice):
            schemi = os.path.join(cartella, 'site', 'Schemi')
            nomi += ['site/Schemi/' + n for n in os.listdir(schemi) if n.endswith('Sch.xml')]
        return sorted({n for n in nomi
                       if not (os.path.isfile(os.path.join(nuova, n))
                               and os.path.isfile(os.path.join(radice, n))
                               and filecmp.cmp(os.path.join(nuova, n), os.path.join(radice, n),
                                               shallow=False))})


if __name__ == '__main__':
    import sys
    radice = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    if sys.argv[1:] == ['--controlla']:
        # The committed files are those a fresh run writes.
        diversi = controlla(radice)
        for nome in diversi:
            print('%s: not as db/genera_schema.py writes it' % nome)
        sys.exit(1 if diversi else 0)
    genera(radice)
