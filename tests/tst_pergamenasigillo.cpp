// A parchment with its seal, on SQLite and on PostgreSQL, through the hosts of the two records:
// created, described in every field, changed and saved, each of the seven tables checked column
// by column after each save; the host's delete that follows the record once a dialog has closed;
// impossible dates and years, a lookup list missing or with stray commas, a save refused by the
// database or missing a row that another workstation deleted, and the image of a MAG document
// imported and removed.

#include "images/basGestImgMag.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Conversioni.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

namespace {

// A box of a record with the table and the column that hold it, and its limit.
struct Campo {
    int n;
    const char* tabella;
    const char* colonna;
    int iMax;
};

const Campo CampiPergamena[] = {
    {0, "Pergamene", "Segnatura", 64},
    {2, "Pergamene", "DataTopica", 64},
    {3, "Pergamene", "Datazio", 256},
    {4, "Pergamene", "Regesto", 1024},
    {25, "Pergamene", "Miniatura", 512},
    {28, "Pergamene", "Annuncio", 1024},
    {7, "Pergamene", "Accesso", 256},
    {8, "Pergamene", "Riproduzione", 128},
    {5, "Pergamene", "Lingua", 128},
    {6, "Pergamene", "Bibliografia", 1024},
    {32, "Pergamene", "NoteDirezione", 1024},
    {29, "Pergamene", "NoteRiproduzione", 256},
    {20, "Pergamene", "Note", 1024},
    {35, "Pergamene", "UrlLink", 128},
    {36, "Pergamene", "DescrizioneEstremi", 128},
    {21, "PGSupporti", "Supporto", 32},
    {22, "PGSupporti", "StatoConservazione", 256},
    {23, "PGSupporti", "Dimensioni", 32},
    {24, "PGSupporti", "Note", 1024},
    {19, "PGTraditio", "Rogatario", 512},
    {9, "PGTraditio", "DataCopiaTesto", 64},
    {34, "PGEleGrafici", "NoteGrafiche", 512},
    {30, "PGNoteStoriche", "NoteStoriche", 1024},
    {15, "Elementi", "Redattore", 64},
};

const Campo CampiSigillo[] = {
    {0, "Sigilli", "Identificativo", 256},
    {4, "Sigilli", "Dimensioni", 32},
    {6, "Sigilli", "Colore", 64},
    {10, "Sigilli", "Posizione", 64},
    {13, "Sigilli", "NoteDirezione", 1024},
    {25, "Sigilli", "Attacchi", 128},
    {26, "Sigilli", "Protezione", 128},
    {27, "Sigilli", "Qualita", 128},
    {28, "Sigilli", "Conservazione", 256},
    {29, "Sigilli", "Segni", 256},
    {30, "Sigilli", "Autenticita", 256},
    {31, "Sigilli", "Matrice", 256},
    {32, "Sigilli", "AltreImpronteSigillo", 512},
    {33, "Sigilli", "AltreImpronteTitolare", 512},
    {34, "Sigilli", "Edizione", 256},
    {35, "Sigilli", "Bibliografia", 1024},
    {36, "Sigilli", "Accesso", 256},
    {37, "Sigilli", "Riproduzione", 128},
    {38, "Sigilli", "Note", 1024},
    {42, "Sigilli", "RifDocNoInv", 512},
    {43, "Sigilli", "DescrizioneEstremi", 256},
    {11, "Sigilli", "UrlLink", 128},
    {16, "SGTipo", "DimensioniR", 32},
    {17, "SGTipo", "TrascrizioneR", 512},
    {18, "SGTipo", "LinguaR", 128},
    {19, "SGTipo", "DescrizioneR", 1024},
    {20, "SGTipo", "TrascrizioneV", 512},
    {21, "SGTipo", "LinguaV", 128},
    {22, "SGTipo", "DescrizioneV", 1024},
    {24, "SGTipo", "Incisore", 1024},
    {40, "SGTipo", "DimensioniV", 32},
    {12, "Elementi", "Redattore", 64},
};

// The text of a box in a round of the description: its column, the round, quotes and accents,
// at the whole length the box allows.
QString TestoDelGiro(const Campo& campo, int giro) {
    return Lungo(QStringLiteral("%1 %2° «d'è» \"sì\" ").arg(QLatin1String(campo.colonna)).arg(giro),
                 campo.iMax);
}

// Every box of the list filled with the round's text.
template <size_t N> void Descrivi(QWidget* editore, const Campo (&campi)[N], int giro) {
    for (const Campo& campo : campi)
        ScriviTesto(editore, campo.n, TestoDelGiro(campo, giro));
}

// The round's texts as the columns of a table expect them.
template <size_t N>
void TestiAttesi(QVariantMap& riga, const Campo (&campi)[N], const char* tabella, int giro) {
    for (const Campo& campo : campi) {
        if (qstrcmp(campo.tabella, tabella) == 0)
            riga.insert(QString::fromLatin1(campo.colonna).toLower(), TestoDelGiro(campo, giro));
    }
}

// The boxes of the list that do not show the round's text.
template <size_t N>
QStringList DiversiDalGiro(QWidget* editore, const Campo (&campi)[N], int giro) {
    QStringList diversi;
    for (const Campo& campo : campi) {
        if (Testo(editore, campo.n) != TestoDelGiro(campo, giro))
            diversi << QLatin1String(campo.colonna);
    }
    return diversi;
}

// The code of a list entry as its column holds it: two digits, Null for the entry of code 0.
QVariant Codice(const QComboBox* combo, int indice) {
    const qlonglong codice = combo->itemData(indice).toLongLong();
    if (codice == 0)
        return QVariant();
    return QStringLiteral("%1").arg(codice, 2, 10, QLatin1Char('0'));
}

// A free text as its column holds it: Null when empty.
QVariant TestoONull(const QString& testo) {
    return testo.isEmpty() ? QVariant() : QVariant(testo);
}

// The columns of a row that differ from what is expected, every column named: a Null expected
// where the column is Null, a date where the column holds that day, the text of anything else.
QString Differenze(const QString& tabella, const QVariantMap& attesa, const QVariantMap& riga) {
    if (riga.isEmpty())
        return tabella + QStringLiteral(": no row");
    QStringList differenze;
    if (attesa.keys() != riga.keys())
        differenze << QStringLiteral("columns %1 instead of %2")
                          .arg(riga.keys().join(QLatin1Char(',')),
                               attesa.keys().join(QLatin1Char(',')));
    for (auto it = attesa.cbegin(); it != attesa.cend(); ++it) {
        const QVariant valore = riga.value(it.key());
        bool bUguale = false;
        if (ENull(it.value()))
            bUguale = ENull(valore);
        else if (it.value().typeId() == QMetaType::QDate)
            bUguale = !ENull(valore) && (valore.toDateTime().date() == it.value().toDate() ||
                                         valore.toDate() == it.value().toDate());
        else
            bUguale = !ENull(valore) && valore.toString() == it.value().toString();
        if (!bUguale)
            differenze << QStringLiteral("%1 is \"%2\" instead of \"%3\"")
                              .arg(it.key(),
                                   ENull(valore) ? QStringLiteral("Null")
                                                 : valore.toString().left(40),
                                   ENull(it.value()) ? QStringLiteral("Null")
                                                     : it.value().toString().left(40));
    }
    return differenze.isEmpty()
               ? QString()
               : tabella + QStringLiteral(": ") + differenze.join(QStringLiteral("; "));
}

struct Ambiente : AmbientePergamene {
    explicit Ambiente(TipoBackend tipo)
        : AmbientePergamene(tipo, QStringLiteral("Pergamene"))
        , sCodiceSito(Valore(QStringLiteral("SELECT Code FROM Config"), {}).toString()) {}

    // The row of Elementi of a record as the host made it and the save wrote it.
    QVariantMap ElementoAtteso(long id, const char* tipo, long padre, const QString& sNome,
                               bool bPubblicato, const QDate& data, const QString& sRedattore,
                               long figli) const {
        return {
            {QStringLiteral("id_elemento"), Id(id)},
            {QStringLiteral("id_elementopadre"), Id(padre)},
            {QStringLiteral("tipologia"), QLatin1String(tipo)},
            {QStringLiteral("denominazione"), sNome},
            {QStringLiteral("pubblicato"), bPubblicato ? QStringLiteral("S") : QStringLiteral("N")},
            {QStringLiteral("dataredazione"), data},
            {QStringLiteral("redattore"), sRedattore},
            {QStringLiteral("figli"), Id(figli)},
            {QStringLiteral("xmllink"), QVariant()},
            {QStringLiteral("md5link"), QVariant()},
            {QStringLiteral("paginastart"), Id(0)},
            {QStringLiteral("paginaend"), Id(0)},
            {QStringLiteral("struprog"), QVariant()},
            {QStringLiteral("code"), sCodiceSito}};
    }
    QString Elemento(long id, const QVariantMap& attesa) const {
        return Differenze(
            QStringLiteral("Elementi"), attesa,
            RigaIntera(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"), id));
    }

    const QString sCodiceSito;
};

// What a round gives the parchment besides its texts.
struct Pergamena {
    QString sInizio, sFine;   // the two chronic dates, dd/mm/yyyy
    qlonglong nInizio, nFine; // as stored
    int iTraditio;
    qlonglong attuali, originali;
    bool bUnita, bPubblica;
    QDate data;
};

// A copy of the thirteenth century, published.
const Pergamena Duecento = {QStringLiteral("03/03/1210"),
                            QStringLiteral("25/12/1211"),
                            12100303,
                            12111225,
                            1,
                            1,
                            2,
                            true,
                            true,
                            QDate(2024, 5, 17)};

void DescriviPergamena(ucPergamena& editore, int giro, const Pergamena& p) {
    Descrivi(&editore, CampiPergamena, giro);
    Riga(&editore, 1)->setText(p.sInizio);
    Riga(&editore, 33)->setText(p.sFine);
    Riga(&editore, 26)->setText(QString::number(p.attuali));
    Riga(&editore, 27)->setText(QString::number(p.originali));
    Combo(&editore, "cmbTraditio")->setCurrentIndex(p.iTraditio);
    editore.findChild<QCheckBox*>(QStringLiteral("chkUnitaCond"))->setChecked(p.bUnita);
    editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaPG"))->setChecked(p.bPubblica);
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(p.data);
}

// The six tables of the parchment against the round: every column of each row.
QString DifferenzePergamena(const Ambiente& ambiente, const ucPergamena& editore, long id,
                            long padre, long figli, int giro, const Pergamena& p) {
    const long idPG = ambiente.IdPergamena(id);
    const QVariant chiave = Id(idPG);
    const QVariant codice = ambiente.sCodiceSito;
    QStringList differenze;
    const QString sSegnatura = TestoDelGiro(CampiPergamena[0], giro);
    differenze << ambiente.Elemento(
        id, ambiente.ElementoAtteso(id, "05", padre, sSegnatura, p.bPubblica, p.data,
                                    TestoDelGiro(CampiPergamena[23], giro), figli));

    QVariantMap pergamene = {
        {QStringLiteral("id_pergamena"), chiave},
        {QStringLiteral("id_elemento"), Id(id)},
        {QStringLiteral("id_inventario"),
         ambiente.ColonnaDi(QStringLiteral("Inventari"), QStringLiteral("ID_Inventario"), padre)},
        {QStringLiteral("datacronicainizio"), p.nInizio},
        {QStringLiteral("datacronicafine"), p.nFine},
        {QStringLiteral("sigilliattuali"), p.attuali},
        {QStringLiteral("sigillioriginari"), p.originali},
        {QStringLiteral("flgunitacond"), Id(p.bUnita ? 1 : 0)},
        {QStringLiteral("code"), codice}};
    TestiAttesi(pergamene, CampiPergamena, "Pergamene", giro);
    QVariantMap supporti = {{QStringLiteral("id_pergamena"), chiave},
                            {QStringLiteral("code"), codice}};
    TestiAttesi(supporti, CampiPergamena, "PGSupporti", giro);
    QVariantMap traditio = {
        {QStringLiteral("id_pergamena"), chiave},
        {QStringLiteral("traditio"), Codice(Combo(&editore, "cmbTraditio"), p.iTraditio)},
        {QStringLiteral("datacopia"), QVariant()},
        {QStringLiteral("id_elemento"), QVariant()},
        {QStringLiteral("code"), codice}};
    TestiAttesi(traditio, CampiPergamena, "PGTraditio", giro);
    QVariantMap grafici = {{QStringLiteral("id_pergamena"), chiave},
                           {QStringLiteral("code"), codice}};
    TestiAttesi(grafici, CampiPergamena, "PGEleGrafici", giro);
    QVariantMap storiche = {{QStringLiteral("id_pergamena"), chiave},
                            {QStringLiteral("code"), codice}};
    TestiAttesi(storiche, CampiPergamena, "PGNoteStoriche", giro);

    const QList<std::pair<QString, QVariantMap>> tabelle = {
        {QStringLiteral("Pergamene"), pergamene},
        {QStringLiteral("PGSupporti"), supporti},
        {QStringLiteral("PGTraditio"), traditio},
        {QStringLiteral("PGEleGrafici"), grafici},
        {QStringLiteral("PGNoteStoriche"), storiche}};
    for (const auto& [tabella, attesa] : tabelle)
        differenze << Differenze(
            tabella, attesa, ambiente.RigaIntera(tabella, QStringLiteral("ID_Pergamena"), idPG));
    differenze.removeAll(QString());
    return differenze.join(QLatin1Char('\n'));
}

// What a round gives the seal besides its texts: the entries chosen and the years.
struct Sigillo {
    int iNatura, iMateria, iRapporto, iApposizione, iForma, iTipoIcoR, iTipoIcoV;
    QString sFormaVerso, sTipoDGR, sTipoDGV;
    QString sAnnoInizio, sAnnoFine;
    qlonglong nInizio, nFine;
    bool bUnita, bPubblica;
    QDate data;
};

void DescriviSigillo(ucSigillo& editore, int giro, const Sigillo& s) {
    Descrivi(&editore, CampiSigillo, giro);
    Combo(&editore, "cmbTipol")->setCurrentIndex(s.iNatura);
    Combo(&editore, "cmbMat")->setCurrentIndex(s.iMateria);
    Combo(&editore, "cmbDoc")->setCurrentIndex(s.iRapporto);
    Combo(&editore, "cmbApp")->setCurrentIndex(s.iApposizione);
    Indice(&editore, "cmbForma", 0)->setCurrentIndex(s.iForma);
    Indice(&editore, "cmbForma", 1)->setEditText(s.sFormaVerso);
    Indice(&editore, "cmbTipoDG", 0)->setEditText(s.sTipoDGR);
    Indice(&editore, "cmbTipoDG", 1)->setEditText(s.sTipoDGV);
    Indice(&editore, "cmbTipoIco", 0)->setCurrentIndex(s.iTipoIcoR);
    Indice(&editore, "cmbTipoIco", 1)->setCurrentIndex(s.iTipoIcoV);
    Riga(&editore, 2)->setText(s.sAnnoInizio);
    Riga(&editore, 3)->setText(s.sAnnoFine);
    editore.findChild<QCheckBox*>(QStringLiteral("chkUnitaCond"))->setChecked(s.bUnita);
    editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaSG"))->setChecked(s.bPubblica);
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(s.data);
}

// The three tables of the seal against the round: every column of each row.
QString DifferenzeSigillo(const Ambiente& ambiente, const ucSigillo& editore, long id, long padre,
                          int giro, const Sigillo& s) {
    const long idSG = ambiente.IdSigillo(id);
    const QVariant chiave = Id(idSG);
    const QVariant codice = ambiente.sCodiceSito;
    QStringList differenze;
    differenze << ambiente.Elemento(
        id, ambiente.ElementoAtteso(id, "06", padre, TestoDelGiro(CampiSigillo[0], giro),
                                    s.bPubblica, s.data, TestoDelGiro(CampiSigillo[31], giro), 0));
    QVariantMap sigilli = {
        {QStringLiteral("id_sigillo"), chiave},
        {QStringLiteral("id_elemento"), Id(id)},
        {QStringLiteral("id_inventario"),
         ambiente.ColonnaDi(QStringLiteral("Pergamene"), QStringLiteral("ID_Inventario"), padre)},
        {QStringLiteral("tipologia"), Codice(Combo(&editore, "cmbTipol"), s.iNatura)},
        {QStringLiteral("datainizio"), s.nInizio},
        {QStringLiteral("datafine"), s.nFine},
        {QStringLiteral("materianuovo"), Codice(Combo(&editore, "cmbMat"), s.iMateria)},
        {QStringLiteral("apposizione"), Combo(&editore, "cmbApp")->itemText(s.iApposizione)},
        {QStringLiteral("rapporto"), Codice(Combo(&editore, "cmbDoc"), s.iRapporto)},
        {QStringLiteral("ruolo"), QVariant()},
        {QStringLiteral("flgunitacond"), Id(s.bUnita ? 1 : 0)},
        {QStringLiteral("code"), codice}};
    TestiAttesi(sigilli, CampiSigillo, "Sigilli", giro);
    QVariantMap tipo = {
        {QStringLiteral("id_sigillo"), chiave},
        {QStringLiteral("formar"), Indice(&editore, "cmbForma", 0)->itemText(s.iForma)},
        {QStringLiteral("formav"), s.sFormaVerso},
        {QStringLiteral("tipologiar"), TestoONull(s.sTipoDGR)},
        {QStringLiteral("tipologiav"), TestoONull(s.sTipoDGV)},
        {QStringLiteral("tipologicor"), Codice(Indice(&editore, "cmbTipoIco", 0), s.iTipoIcoR)},
        {QStringLiteral("tipologicov"), Codice(Indice(&editore, "cmbTipoIco", 1), s.iTipoIcoV)},
        {QStringLiteral("code"), codice}};
    TestiAttesi(tipo, CampiSigillo, "SGTipo", giro);
    differenze << Differenze(
        QStringLiteral("Sigilli"), sigilli,
        ambiente.RigaIntera(QStringLiteral("Sigilli"), QStringLiteral("ID_Sigillo"), idSG));
    differenze << Differenze(
        QStringLiteral("SGTipo"), tipo,
        ambiente.RigaIntera(QStringLiteral("SGTipo"), QStringLiteral("ID_Sigillo"), idSG));
    differenze.removeAll(QString());
    return differenze.join(QLatin1Char('\n'));
}

// The rows of the six tables of a parchment, as they stand.
QList<QVariantMap> SeiTabelle(const Ambiente& ambiente, long id) {
    const long idPG = ambiente.IdPergamena(id);
    QList<QVariantMap> righe = {
        ambiente.RigaIntera(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"), id)};
    for (const char* tabella :
         {"Pergamene", "PGSupporti", "PGTraditio", "PGEleGrafici", "PGNoteStoriche"})
        righe << ambiente.RigaIntera(QLatin1String(tabella), QStringLiteral("ID_Pergamena"), idPG);
    return righe;
}

// A stand-in dialog of that name that runs its work and closes.
void SostitutoChe(const QString& sNome, std::function<void()> lavoro) {
    Dialoghi::Registra(
        sNome,
        [lavoro = std::move(lavoro)](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
            lavoro();
            auto* dlg = new QDialog(genitore);
            QTimer::singleShot(0, dlg, &QDialog::accept);
            return dlg;
        });
}

} // namespace

class TestPergamenaSigillo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void unaPergamenaConIlSuoSigilloSiCreaDescriveCambiaESalvaColonnaPerColonna_data() {
        AggiungiBackend();
    }
    void unaPergamenaConIlSuoSigilloSiCreaDescriveCambiaESalvaColonnaPerColonna();
    void chiusoUnDialogoLOspiteRileggeSeSiPuoCancellare_data() { AggiungiBackend(); }
    void chiusoUnDialogoLOspiteRileggeSeSiPuoCancellare();
    void leDateImpossibiliDellaPergamenaSonoRifiutateESiSalvanoNull_data() { AggiungiBackend(); }
    void leDateImpossibiliDellaPergamenaSonoRifiutateESiSalvanoNull();
    void gliAnniDelSigilloNonSiControllanoESiScrivonoComeDigitati_data() { AggiungiBackend(); }
    void gliAnniDelSigilloNonSiControllanoESiScrivonoComeDigitati();
    void unaListaMancanteFermaLInitConLErroreDelFile_data() { AggiungiBackend(); }
    void unaListaMancanteFermaLInitConLErroreDelFile();
    void unaVirgolaInUnaListaFaDueVoci_data() { AggiungiBackend(); }
    void unaVirgolaInUnaListaFaDueVoci();
    void unSalvataggioRifiutatoDalDatabaseLasciaLeSeiTabelleComErano_data() { AggiungiBackend(); }
    void unSalvataggioRifiutatoDalDatabaseLasciaLeSeiTabelleComErano();
    void unaRigaCancellataDaUnAltraPostazioneFermaIlSalvaConUnMessaggio_data() {
        AggiungiBackend();
    }
    void unaRigaCancellataDaUnAltraPostazioneFermaIlSalvaConUnMessaggio();
    void lImmagineDiUnaPergamenaEDiUnSigilloSiImportaESiRimuove_data() { AggiungiBackend(); }
    void lImmagineDiUnaPergamenaEDiUnSigilloSiImportaESiRimuove();
    void unSigilloStaccatoPoiAttaccatoConEPoiSenzaVersoFaIlGiro_data() { AggiungiBackend(); }
    void unSigilloStaccatoPoiAttaccatoConEPoiSenzaVersoFaIlGiro();
};

void TestPergamenaSigillo::
    unaPergamenaConIlSuoSigilloSiCreaDescriveCambiaESalvaColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = ambiente.Crea("03", QStringLiteral("Inventario"), istituto);

    // The parchment: created through its host under the finding aid as an original, at the
    // lowest year of three digits and the highest of four.
    auto [pergamena, ospitePG] = OspitePergamena(inventario);
    ospitePG.cmdNuovo->click();
    const Pergamena primo = {QStringLiteral("01/01/100"),
                             QStringLiteral("31/12/9999"),
                             1000101,
                             99991231,
                             0,
                             2,
                             3,
                             true,
                             true,
                             QDate(2024, 5, 17)};
    DescriviPergamena(*pergamena, 1, primo);
    ospitePG.cmdConferma->click();
    QCOMPARE(ospitePG.Stato(), QStringLiteral("mostra"));
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    const long idPergamena = ospitePG.IdCorrente();
    QVERIFY(idPergamena > 0);
    QString sDiverso =
        DifferenzePergamena(ambiente, *pergamena, idPergamena, inventario, 0, 1, primo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    // Shown again by the host, every box as it was written.
    QCOMPARE(DiversiDalGiro(pergamena, CampiPergamena, 1), QStringList());
    QCOMPARE(Testo(pergamena, 1), QStringLiteral("01/01/100"));
    QCOMPARE(Testo(pergamena, 33), QStringLiteral("31/12/9999"));
    QVERIFY(ospitePG.cmdCancella->isEnabled());

    // The seal on the parchment: its relation to the document is the default, its reference in
    // free text; a natura with a verso.
    auto [sigillo, ospiteSG] = OspiteSigillo(idPergamena);
    ospiteSG.cmdNuovo->click();
    QVERIFY(!Etichetta(sigillo, 42)->isHidden());
    QCOMPARE(Combo(sigillo, "cmbDoc")->currentIndex(), 1);
    const Sigillo primoSG = {1,
                             3,
                             1,
                             7,
                             5,
                             12,
                             3,
                             QStringLiteral("Ovale «a punta»"),
                             QStringLiteral("Sigillo d'ufficio"),
                             QStringLiteral("Controsigillo \"segreto\""),
                             QStringLiteral("100"),
                             QStringLiteral("9999"),
                             1000101,
                             99991231,
                             true,
                             false,
                             QDate(2023, 12, 31)};
    DescriviSigillo(*sigillo, 1, primoSG);
    ospiteSG.cmdConferma->click();
    QCOMPARE(ospiteSG.Stato(), QStringLiteral("mostra"));
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    const long idSigillo = ospiteSG.IdCorrente();
    QVERIFY(idSigillo > 0);
    sDiverso = DifferenzeSigillo(ambiente, *sigillo, idSigillo, idPergamena, 1, primoSG);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    QCOMPARE(DiversiDalGiro(sigillo, CampiSigillo, 1), QStringList());
    QCOMPARE(Testo(sigillo, 2), QStringLiteral("100"));
    QCOMPARE(Testo(sigillo, 3), QStringLiteral("9999"));
    // The parchment now has a child: the database counts it, and it can no longer be deleted.
    sDiverso = DifferenzePergamena(ambiente, *pergamena, idPergamena, inventario, 1, 1, primo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    ospitePG.MostraElemento(idPergamena);
    QVERIFY(!ospitePG.cmdCancella->isEnabled());

    // Changed: the parchment into a copy, every field, and dates of three digits.
    ospitePG.cmdModifica->click();
    const Pergamena secondo = {QStringLiteral("29/02/1200"),
                               QStringLiteral("03/03/812"),
                               12000229,
                               8120303,
                               2,
                               0,
                               12,
                               false,
                               false,
                               QDate(2025, 1, 1)};
    DescriviPergamena(*pergamena, 2, secondo);
    QVERIFY(!Riga(pergamena, 9)->isHidden());
    ospitePG.cmdConferma->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    sDiverso = DifferenzePergamena(ambiente, *pergamena, idPergamena, inventario, 1, 2, secondo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    QCOMPARE(DiversiDalGiro(pergamena, CampiPergamena, 2), QStringList());
    QCOMPARE(Testo(pergamena, 33), QStringLiteral("03/03/812"));
    QCOMPARE(Combo(pergamena, "cmbTraditio")->currentIndex(), 2);

    // And back to an original: the copy's fields hidden, saved as they stand.
    ospitePG.cmdModifica->click();
    Pergamena terzo = secondo;
    terzo.iTraditio = 0;
    DescriviPergamena(*pergamena, 3, terzo);
    QVERIFY(Riga(pergamena, 9)->isHidden());
    ospitePG.cmdConferma->click();
    sDiverso = DifferenzePergamena(ambiente, *pergamena, idPergamena, inventario, 1, 3, terzo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));

    // The seal changed: a natura without a verso hides it, and the verso is saved all the same;
    // years of three digits.
    ospiteSG.MostraElemento(idSigillo);
    ospiteSG.cmdModifica->click();
    const Sigillo secondoSG = {5,
                               0,
                               3,
                               2,
                               0,
                               0,
                               0,
                               QStringLiteral("Tonda"),
                               QString(),
                               QStringLiteral("Sigillo di famiglia"),
                               QStringLiteral("812"),
                               QStringLiteral("999"),
                               8120101,
                               9991231,
                               false,
                               true,
                               QDate(2020, 2, 29)};
    DescriviSigillo(*sigillo, 2, secondoSG);
    QVERIFY(sigillo->findChild<QWidget*>(QStringLiteral("Frame2"))->isHidden());
    ospiteSG.cmdConferma->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    sDiverso = DifferenzeSigillo(ambiente, *sigillo, idSigillo, idPergamena, 2, secondoSG);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    QCOMPARE(DiversiDalGiro(sigillo, CampiSigillo, 2), QStringList());
    QCOMPARE(Testo(sigillo, 2), QStringLiteral("812"));
    // The parchment's rows are as its last save left them.
    sDiverso = DifferenzePergamena(ambiente, *pergamena, idPergamena, inventario, 1, 3, terzo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
}

void TestPergamenaSigillo::chiusoUnDialogoLOspiteRileggeSeSiPuoCancellare() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    const long sigillo = ambiente.Crea("06", QStringLiteral("Sigillo"), albero.pergamena);
    // Each stand-in, meanwhile, hangs a child under the record it was opened from, or takes it
    // away again.
    long lFiglio = 0;
    const auto figlio = [&](long padre) {
        if (lFiglio == 0) {
            lFiglio = ambiente.Crea("06", QStringLiteral("Controsigillo"), padre);
        } else {
            ArchivioElementi::Elimina(ambiente.Cnn(), QStringLiteral("06"), lFiglio);
            lFiglio = 0;
        }
    };

    auto [pergamena, ospitePG] = OspitePergamena(albero.inventario);
    // With its seal the parchment cannot be deleted; it can once the seal has gone.
    ospitePG.MostraElemento(albero.pergamena);
    QVERIFY(!ospitePG.cmdCancella->isEnabled());
    lFiglio = sigillo;
    SostitutoChe(QStringLiteral("frmAltreSegnature"), [&] { figlio(albero.pergamena); });
    Pulsante(pergamena, "cmdMostraAltreSeg")->click();
    QCOMPARE(lFiglio, 0L);
    QVERIFY(pergamena->OkCancella);
    QVERIFY(ospitePG.cmdCancella->isEnabled());
    SostitutoChe(QStringLiteral("frmMostraLinkTopo"), [&] { figlio(albero.pergamena); });
    Pulsante(pergamena, "cmdMostraToponimi")->click();
    QVERIFY(!pergamena->OkCancella);
    QVERIFY(!ospitePG.cmdCancella->isEnabled());
    // The link dialog of the original too.
    Combo(pergamena, "cmbTraditio")->setCurrentIndex(1);
    SostitutoChe(QStringLiteral("frmCollegaPergamene"), [&] { figlio(albero.pergamena); });
    Pulsante(pergamena, "cmdMostraPergamene")->click();
    QVERIFY(ospitePG.cmdCancella->isEnabled());

    // The seal's two viewers.
    const long altro = ambiente.Crea("06", QStringLiteral("Altro sigillo"), albero.pergamena);
    auto [editoreSG, ospiteSG] = OspiteSigillo(albero.pergamena);
    ospiteSG.MostraElemento(altro);
    QVERIFY(ospiteSG.cmdCancella->isEnabled());
    bool bCancellabileAllEvento = true;
    connect(editoreSG, &ucSigillo::EventoStato, this,
            [&] { bCancellabileAllEvento = editoreSG->OkCancella; });
    SostitutoChe(QStringLiteral("frmMostraLinkTitolari"), [&] { figlio(altro); });
    Pulsante(editoreSG, "cmdMostraTitolari")->click();
    QVERIFY(!bCancellabileAllEvento);
    QVERIFY(!ospiteSG.cmdCancella->isEnabled());
    SostitutoChe(QStringLiteral("frmMostraLinkPGS"), [&] { figlio(altro); });
    Pulsante(editoreSG, "cmdMostraPergamene")->click();
    QVERIFY(bCancellabileAllEvento);
    QVERIFY(ospiteSG.cmdCancella->isEnabled());
    for (const char* nome : {"frmAltreSegnature", "frmMostraLinkTopo", "frmCollegaPergamene",
                             "frmMostraLinkTitolari", "frmMostraLinkPGS"})
        Dialoghi::Rimuovi(QLatin1String(nome));
}

void TestPergamenaSigillo::leDateImpossibiliDellaPergamenaSonoRifiutateESiSalvanoNull() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    auto [editore, ospite] = OspitePergamena(albero.inventario);
    QVERIFY(InModifica(ospite, albero.pergamena));
    editore->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(0);

    // 31 February, 29 February of a year that is not a leap year, the year 0 and a year of five
    // digits: each refused on leaving its box, and the focus stays.
    const QStringList impossibili = {QStringLiteral("31/02/1900"), QStringLiteral("29/02/1900"),
                                     QStringLiteral("01/01/0000"), QStringLiteral("01/01/000"),
                                     QStringLiteral("1/1/12345"),  QStringLiteral("32/01/1900"),
                                     QStringLiteral("01/13/1900")};
    int iAttesi = 0;
    for (int n : {1, 33}) {
        QLineEdit* casella = Riga(editore, n);
        for (const QString& data : impossibili)
            RifiutatoAllUscita(ambiente.seam, casella, data, Riga(editore, 0),
                               QStringLiteral("Data errata"), iAttesi);
        // The limits of a date of the form: the year 100 and the year 9999.
        for (const QString& data : {QStringLiteral("01/01/100"), QStringLiteral("31/12/9999")})
            AccettatoAllUscita(ambiente.seam, casella, data, Riga(editore, 0), iAttesi);
    }

    // The check is made on leaving the box only: a date that is none reaches the save as Null.
    ambiente.Scrivi(QStringLiteral("DataCronicaInizio = ?, DataCronicaFine = ?"),
                    {Id(12100303), Id(12111225), Id(albero.pergamena)});
    for (const QString& data : impossibili) {
        ospite.MostraElemento(albero.pergamena);
        QCOMPARE(Testo(editore, 1), QStringLiteral("03/03/1210"));
        editore->Modifica();
        Compila(*editore);
        Riga(editore, 1)->setText(data);
        Riga(editore, 33)->setText(data);
        editore->Salva(albero.pergamena);
        QVERIFY2(ambiente.Nullo(QStringLiteral("DataCronicaInizio"), albero.pergamena),
                 qPrintable(data));
        QVERIFY2(ambiente.Nullo(QStringLiteral("DataCronicaFine"), albero.pergamena),
                 qPrintable(data));
        ambiente.Scrivi(QStringLiteral("DataCronicaInizio = ?, DataCronicaFine = ?"),
                        {Id(12100303), Id(12111225), Id(albero.pergamena)});
    }
}

void TestPergamenaSigillo::gliAnniDelSigilloNonSiControllanoESiScrivonoComeDigitati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long pergamena = ambiente.Crea("05", QStringLiteral("Pergamena"));
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"), pergamena);
    auto [editore, ospite] = OspiteSigillo(pergamena);
    const auto colonna = [&ambiente, id](const QString& sColonna) {
        return ambiente.ColonnaDi(QStringLiteral("Sigilli"), sColonna, id);
    };
    QVERIFY(InModifica(ospite, id));
    Compila(*editore);

    // A year of five digits cannot be typed: the box takes four.
    QLineEdit* inizio = Riga(editore, 2);
    QLineEdit* fine = Riga(editore, 3);
    inizio->setFocus();
    inizio->clear();
    QTest::keyClicks(inizio, QStringLiteral("12345"));
    QCOMPARE(inizio->text(), QStringLiteral("1234"));
    // Nothing is said on leaving a year, whatever it holds.
    fine->setFocus();
    fine->setText(QStringLiteral("0"));
    QTest::mouseClick(inizio, Qt::LeftButton);
    QVERIFY(inizio->hasFocus());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());

    // Stored with the suffix as typed: the year 0 and the year 0000 give the number of "0" and
    // "0000" followed by the day of the range.
    const QList<std::tuple<QString, QString, qlonglong, qlonglong>> anni = {
        {QStringLiteral("1234"), QStringLiteral("0"), 12340101, 1231},
        {QStringLiteral("0000"), QStringLiteral("0001"), 101, 11231},
        {QStringLiteral("100"), QStringLiteral("9999"), 1000101, 99991231},
    };
    for (const auto& [sInizio, sFine, nInizio, nFine] : anni) {
        inizio->setText(sInizio);
        fine->setText(sFine);
        ospite.cmdConferma->click();
        QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
        QCOMPARE(colonna(QStringLiteral("DataInizio")).toLongLong(), nInizio);
        QCOMPARE(colonna(QStringLiteral("DataFine")).toLongLong(), nFine);
        ospite.cmdModifica->click();
    }
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    // A year that is no number is an error of the save, shown by the host: nothing is written.
    inizio->setText(QStringLiteral("12a"));
    Riga(editore, 6)->setText(QStringLiteral("verde"));
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    QCOMPARE(colonna(QStringLiteral("DataInizio")).toLongLong(), 1000101LL);
    QVERIFY(colonna(QStringLiteral("Colore")).toString() != QLatin1String("verde"));
}

void TestPergamenaSigillo::unaListaMancanteFermaLInitConLErroreDelFile() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto manca = [&ambiente](EditoreRecord& editore, const char* lista) {
        const QString sPercorso = ambiente.cartella.File(QLatin1String(lista));
        QFile file(sPercorso);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray contenuto = file.readAll();
        file.close();
        ambiente.cartella.Rimuovi(QLatin1String(lista));
        bool bErrore = false;
        try {
            editore.Init();
        } catch (const Errore& errore) {
            bErrore = errore.numero() == ErroriPiattaforma::FileNonTrovato &&
                      errore.descrizione().contains(QLatin1String(lista));
        }
        QVERIFY2(bErrore, lista);
        // The list back: Init reads it again.
        ambiente.cartella.Scrivi(QLatin1String(lista), contenuto);
        QVERIFY_THROWS_NO_EXCEPTION(editore.Init());
    };
    ucPergamena pergamena;
    manca(pergamena, "TraditioPG.txt");
    QCOMPARE(Combo(&pergamena, "cmbTraditio")->count(), 7);
    ucSigillo sigillo;
    for (const char* lista :
         {"TipologiaIcoSG.txt", "FormaSG.txt", "MateriaSG.txt", "TipologiaSG.txt",
          "ApposizioneSG.txt", "RapportoDocSG.txt", "TipologiaDGSG.txt"})
        manca(sigillo, lista);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
}

void TestPergamenaSigillo::unaVirgolaInUnaListaFaDueVoci() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    const long idPG = ambiente.IdPergamena(id);
    // A comma in a text makes a second entry whose code is its own first two characters; in
    // double quotes the comma is kept.
    ambiente.cartella.Scrivi(
        QStringLiteral("TraditioPG.txt"),
        "01Originale\r\n02Copia autentica, 5 esemplari\r\n"
        "\"03Copia semplice, su carta\"\r\n04Inserto\r\n05Copia imitativa\r\n");
    ucPergamena editore;
    editore.Init();
    QComboBox* traditio = Combo(&editore, "cmbTraditio");
    QCOMPARE(Voci(traditio),
             QStringList({"1=Originale", "2=Copia autentica", "5=esemplari",
                          "3=Copia semplice, su carta", "4=Inserto", "5=Copia imitativa"}));
    // A stored code 05 is the first entry of that number: the stray one.
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGTraditio SET Traditio = '05' WHERE ID_Pergamena = ?"), {Id(idPG)});
    editore.Mostra(id);
    QCOMPARE(traditio->currentIndex(), 2);
    editore.Modifica();
    Compila(editore);
    traditio->setCurrentIndex(2);
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaPG(QStringLiteral("PGTraditio"), QStringLiteral("Traditio"), idPG)
                 .toString(),
             QStringLiteral("05"));

    // The same in a list of the seal: the matter.
    ambiente.cartella.Scrivi(QStringLiteral("MateriaSG.txt"), "01Cera, 12Lacca\r\n02Piombo\r\n");
    ucSigillo sigillo;
    sigillo.Init();
    QComboBox* materia = Combo(&sigillo, "cmbMat");
    QCOMPARE(materia->count(), 3);
    QCOMPARE(materia->itemText(1), QStringLiteral("Lacca"));
    QCOMPARE(materia->itemData(1).toLongLong(), 12LL);
    QCOMPARE(sigillo.CercaMateria(QStringLiteral("12")), 1);
    QCOMPARE(materia->itemText(2), QStringLiteral("Piombo"));
}

void TestPergamenaSigillo::unSalvataggioRifiutatoDalDatabaseLasciaLeSeiTabelleComErano() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    auto [editore, ospite] = OspitePergamena(albero.inventario);
    MostraInModifica(ospite, albero.pergamena);
    DescriviPergamena(*editore, 1, Duecento);
    ospite.cmdConferma->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    const QList<QVariantMap> prima = SeiTabelle(ambiente, albero.pergamena);

    // The database refuses the last of the six tables, after the other five are written.
    ambiente.RifiutaAggiornamento(QStringLiteral("PGNoteStoriche"),
                                  QStringLiteral("NEW.NoteStoriche = 'Rifiutato'"),
                                  QStringLiteral("Note storiche rifiutate"));
    ospite.cmdModifica->click();
    const Pergamena secondo = {QStringLiteral("01/01/1300"),
                               QStringLiteral("02/02/1301"),
                               13000101,
                               13010202,
                               3,
                               4,
                               5,
                               false,
                               false,
                               QDate(2025, 1, 1)};
    DescriviPergamena(*editore, 2, secondo);
    ScriviTesto(editore, 30, QStringLiteral("Rifiutato"));
    ospite.cmdConferma->click();

    // The host's critical box.
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio messaggio = ambiente.seam.Messaggi().at(0);
    QCOMPARE(messaggio.icona, Icona::Critica);
    QCOMPARE(messaggio.sTitolo, Sessione::TitoloProgramma);
    // The error's source, a line break and its description, the server's words.
    QVERIFY2(messaggio.sTesto.section(QLatin1Char('\n'), 1)
                 .contains(QStringLiteral("Note storiche rifiutate")),
             qPrintable(messaggio.sTesto));
    // Nothing of it stays in any of the six tables, and the form shows what is stored.
    const QList<QVariantMap> dopo = SeiTabelle(ambiente, albero.pergamena);
    const QStringList tabelle = {"Elementi",   "Pergamene",    "PGSupporti",
                                 "PGTraditio", "PGEleGrafici", "PGNoteStoriche"};
    for (int i = 0; i < tabelle.size(); ++i) {
        const QString sDiverso = Differenze(tabelle.at(i), prima.at(i), dopo.at(i));
        QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    }
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(DiversiDalGiro(editore, CampiPergamena, 1), QStringList());

    // The connection is usable afterwards: the same change without the refused note is saved.
    ospite.cmdModifica->click();
    DescriviPergamena(*editore, 2, secondo);
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const QString sDiverso =
        DifferenzePergamena(ambiente, *editore, albero.pergamena, albero.inventario, 0, 2, secondo);
    QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
}

void TestPergamenaSigillo::unaRigaCancellataDaUnAltraPostazioneFermaIlSalvaConUnMessaggio() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    const long idPG = ambiente.IdPergamena(albero.pergamena);
    auto [editore, ospite] = OspitePergamena(albero.inventario);
    MostraInModifica(ospite, albero.pergamena);
    DescriviPergamena(*editore, 1, Duecento);
    const QList<QVariantMap> prima = SeiTabelle(ambiente, albero.pergamena);
    // Another workstation deletes the row of the graphic signs while the record is edited.
    ambiente.Cnn().Esegui(QStringLiteral("DELETE FROM PGEleGrafici WHERE ID_Pergamena = ?"),
                          {Id(idPG)});
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    QVERIFY2(ambiente.seam.Messaggi().at(0).sTesto.contains(QStringLiteral("PGEleGrafici")),
             qPrintable(ambiente.seam.Messaggi().at(0).sTesto));
    // The other five tables as they were.
    const QList<QVariantMap> dopo = SeiTabelle(ambiente, albero.pergamena);
    const QStringList tabelle = {"Elementi",   "Pergamene",    "PGSupporti",
                                 "PGTraditio", "PGEleGrafici", "PGNoteStoriche"};
    for (int i = 0; i < tabelle.size(); ++i) {
        if (tabelle.at(i) == QLatin1String("PGEleGrafici")) {
            QVERIFY(dopo.at(i).isEmpty());
            continue;
        }
        const QString sDiverso = Differenze(tabelle.at(i), prima.at(i), dopo.at(i));
        QVERIFY2(sDiverso.isEmpty(), qPrintable(sDiverso));
    }
}

void TestPergamenaSigillo::lImmagineDiUnaPergamenaEDiUnSigilloSiImportaESiRimuove() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    const long sigillo = ambiente.Crea("06", QStringLiteral("Sigillo"), albero.pergamena);
    EditorePronto<ucPergamena> pergamena(albero.pergamena);
    EditorePronto<ucSigillo> editoreSG(sigillo);
    const QList<std::pair<long, EditoreRecord*>> records = {{albero.pergamena, &pergamena},
                                                            {sigillo, &editoreSG}};
    for (const auto& [id, editore] : records) {
        DocumentoMag mag;
        QString sErrore;
        const QString sMd5 = basGestImgMag::sCalculateMd5(mag.sDoc, sErrore);
        QVERIFY(!sMd5.isEmpty());
        QPushButton* immagine = Pulsante(editore, "cmdImmagine");
        QCOMPARE(immagine->text(), QStringLiteral("Immagine"));

        // The import: the document chosen, its digest on the element with its pages, the place
        // of its images, the index document and the numbered folder in the repository.
        ambiente.seam.Svuota();
        ambiente.seam.fileScelti = {mag.sDoc};
        immagine->click();
        QVERIFY(ambiente.seam.Messaggi().isEmpty());
        QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
        QCOMPARE(immagine->property("Tag").toString(), QStringLiteral("1"));
        const QVariantMap elemento =
            ambiente.RigaIntera(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"), id);
        QCOMPARE(elemento.value(QStringLiteral("md5link")).toString(), sMd5);
        QCOMPARE(elemento.value(QStringLiteral("paginastart")).toLongLong(), 1LL);
        QCOMPARE(elemento.value(QStringLiteral("paginaend")).toLongLong(), 1LL);
        QCOMPARE(elemento.value(QStringLiteral("struprog")).toLongLong(), 0LL);
        const QVariant stato =
            ambiente.Valore(QStringLiteral("SELECT Status FROM MD5Location WHERE MD5 = ?"), {sMd5});
        QCOMPARE(stato.toInt(), 0);
        const QString sXml =
            ambiente.Valore(QStringLiteral("SELECT XmlName FROM MD5Location WHERE MD5 = ?"), {sMd5})
                .toString();
        QVERIFY(!sXml.isEmpty());
        QVERIFY(!ambiente
                     .Valore(QStringLiteral("SELECT LogicalPath FROM MD5Location WHERE MD5 = ?"),
                             {sMd5})
                     .toString()
                     .isEmpty());
        QStringList trovati;
        QDirIterator giro(Sessione::sParam01, {sXml}, QDir::Files, QDirIterator::Subdirectories);
        while (giro.hasNext())
            trovati << giro.next();
        QCOMPARE(trovati.size(), 1);
        const QString sNumerata = QFileInfo(trovati.at(0)).absolutePath() + QLatin1Char('/') +
                                  QFileInfo(sXml).completeBaseName();
        QVERIFY2(QDir(sNumerata).exists(), qPrintable(sNumerata));

        // A save and a Mostra keep it.
        editore->Modifica();
        editore->Salva(id);
        QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), sMd5);
        editore->Mostra(id);
        QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));

        // The removal, once asked: the link and its pages gone, the place marked removed, the
        // index document and the numbered folder deleted.
        ambiente.seam.risposte = {Risposta::Si};
        immagine->click();
        QCOMPARE(ambiente.seam.Messaggi().size(), 1);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto,
                 QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
        QCOMPARE(immagine->text(), QStringLiteral("Immagine"));
        QCOMPARE(immagine->property("Tag").toString(), QStringLiteral("0"));
        const QVariantMap tolto =
            ambiente.RigaIntera(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"), id);
        QVERIFY(ENull(tolto.value(QStringLiteral("md5link"))));
        QCOMPARE(tolto.value(QStringLiteral("paginastart")).toLongLong(), 0LL);
        QCOMPARE(tolto.value(QStringLiteral("paginaend")).toLongLong(), 0LL);
        QVERIFY(ENull(tolto.value(QStringLiteral("struprog"))));
        QCOMPARE(
            ambiente.Valore(QStringLiteral("SELECT Status FROM MD5Location WHERE MD5 = ?"), {sMd5})
                .toInt(),
            3);
        QVERIFY(!QFileInfo::exists(trovati.at(0)));
        QVERIFY(!QDir(sNumerata).exists());
        // Saved and shown again, there is no image.
        editore->Modifica();
        editore->Salva(id);
        QVERIFY(ENull(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id)));
        editore->Mostra(id);
        QCOMPARE(immagine->text(), QStringLiteral("Immagine"));
    }
}

void TestPergamenaSigillo::unSigilloStaccatoPoiAttaccatoConEPoiSenzaVersoFaIlGiro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"), albero.pergamena);
    const auto colonna = [&ambiente, id](const char* nome) {
        return ambiente.ColonnaDi(QStringLiteral("Sigilli"), QLatin1String(nome), id);
    };
    auto [editore, ospite] = OspiteSigillo(albero.pergamena);
    QComboBox* rapporto = Combo(editore, "cmbDoc");
    const int iVoci = rapporto->count();
    const QString sRiferimento = QStringLiteral("Pergamena n. 3 «di Lucca», l'ultima");

    // Not attached to a unit: the relation is not offered, the document is referred to in free
    // text; a natura with a verso.
    MostraInModifica(ospite, id);
    QVERIFY(rapporto->isHidden());
    QVERIFY(!Blocco(editore, 42)->isHidden());
    Compila(*editore);
    Combo(editore, "cmbTipol")->setCurrentIndex(1);
    Indice(editore, "cmbForma", 1)->setEditText(QStringLiteral("Ogivale"));
    ScriviTesto(editore, 22, QStringLiteral("Aquila"));
    ScriviTesto(editore, 42, sRiferimento);
    QVERIFY(rapporto->findData(2) >= 0);
    rapporto->setCurrentIndex(rapporto->findData(2));
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(colonna("Rapporto").toString(), QStringLiteral("02"));
    QCOMPARE(colonna("RifDocNoInv").toString(), sRiferimento);
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaV"), id).toString(), QStringLiteral("Ogivale"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("DescrizioneV"), id).toString(),
             QStringLiteral("Aquila"));

    // Attached: the host says so and loads the editor again; the relation "02" is left out, so
    // the stored one is not chosen and the save stops at it.
    editore->bAttaccato(true);
    ospite.Carica();
    QCOMPARE(rapporto->count(), iVoci - 1);
    QCOMPARE(rapporto->findData(2), -1);
    ospite.MostraElemento(id);
    QVERIFY(Blocco(editore, 42)->isHidden());
    QCOMPARE(rapporto->currentIndex(), -1);
    ospite.cmdModifica->click();
    QVERIFY(!rapporto->isHidden());
    QVERIFY(!ospite.Conferma());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire il rapporto con il documento"));
    // Chosen, and the verso hidden by a natura without it: the reference and the verso are saved
    // as they stand.
    rapporto->setCurrentIndex(0);
    const QString sCodice =
        QStringLiteral("%1").arg(rapporto->itemData(0).toLongLong(), 2, 10, QLatin1Char('0'));
    Combo(editore, "cmbTipol")->setCurrentIndex(0);
    QVERIFY(editore->findChild<QWidget*>(QStringLiteral("Frame2"))->isHidden());
    QVERIFY(ospite.Conferma());
    QCOMPARE(colonna("Rapporto").toString(), sCodice);
    QCOMPARE(colonna("RifDocNoInv").toString(), sRiferimento);
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaV"), id).toString(), QStringLiteral("Ogivale"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("DescrizioneV"), id).toString(),
             QStringLiteral("Aquila"));

    // Not attached again: the stored relation and the reference are shown.
    editore->bAttaccato(false);
    ospite.Carica();
    QCOMPARE(rapporto->count(), iVoci);
    ospite.MostraElemento(id);
    QCOMPARE(rapporto->currentData().toLongLong(), sCodice.toLongLong());
    QCOMPARE(Testo(editore, 42), sRiferimento);
    QVERIFY(!Blocco(editore, 42)->isHidden());
    QVERIFY(editore->findChild<QWidget*>(QStringLiteral("Frame2"))->isHidden());
}

QTEST_MAIN(TestPergamenaSigillo)
#include "tst_pergamenasigillo.moc"
