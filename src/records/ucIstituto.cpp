#include "ucIstituto.h"

#include "session/Conversioni.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

const char* const Tag = "Tag";

// Kinds whose logic the editor knows.
const QString Istituto = QStringLiteral("01");
const QString Sede = QStringLiteral("03");
const QString Magazzino = QStringLiteral("04");

// Positions of cmbTipologiaIS that reshape the form.
constexpr int VoceSede = 2;
constexpr int VoceMagazzino = 3;

const QString SqlMostra = QStringLiteral(
    "SELECT COALESCE(IST.Denominazione,'<<Inserire valore>>') AS Denominazione, IST.Tipologia, "
    "COALESCE(IST.Indirizzo,''), COALESCE(IST.Citta,''), RTRIM(COALESCE(IST.Cap,'')), "
    "COALESCE(IST.Provincia,''), "
    "COALESCE(IST.Telefono,''), COALESCE(IST.Fax,''), COALESCE(IST.EMail,''), "
    "COALESCE(IST.UrlWeb,''), COALESCE(IST.Responsabile,''), COALESCE(IST.Orario,''), "
    "COALESCE(IST.Note,''), "
    "COALESCE(IST.UrlLink,''), COALESCE(IST.NoteDirezione,''), "
    "IST.NumeroComplessi, IST.NumeroInventari, IST.ID_Elemento, "
    "IST.DenomCompleta, IST.Code, IST.ID_Istituto, "
    "COALESCE(CI.ID_CodiceIstituto,0) AS ID_CodiceIstituto "
    "FROM Istituti IST LEFT OUTER JOIN CodiciIstituto CI ON IST.ISAD_Codice = CI.ISAD_Codice "
    "AND IST.ISAD_Sigla = CI.ISAD_Sigla "
    "WHERE IST.ID_Elemento = ?");

const QString SqlSalva = QStringLiteral("SELECT Denominazione, Tipologia, "
                                        "Indirizzo, Citta, Cap, Provincia, "
                                        "Telefono, Fax, EMail, "
                                        "UrlWeb, Responsabile, Orario, Note, "
                                        "UrlLink, NoteDirezione, "
                                        "NumeroComplessi, NumeroInventari, ID_Elemento, "
                                        "DenomCompleta, Code, ID_Istituto, ISAD_Codice, ISAD_Sigla "
                                        "FROM Istituti WHERE ID_Elemento = ?");

// The same columns as SqlSalva, those that Salva writes.
const QString SqlScrivi =
    QStringLiteral("UPDATE Istituti SET Denominazione = ?, Tipologia = ?, "
                   "Indirizzo = ?, Citta = ?, Cap = ?, Provincia = ?, "
                   "Telefono = ?, Fax = ?, EMail = ?, "
                   "UrlWeb = ?, Responsabile = ?, Orario = ?, Note = ?, "
                   "UrlLink = ?, NoteDirezione = ?, ISAD_Codice = ?, ISAD_Sigla = ? "
                   "WHERE ID_Elemento = ?");

} // namespace

ucIstituto::ucIstituto(QWidget* parent)
    : EditoreRecord(parent) {
    setObjectName(QStringLiteral("ucIstituto"));
    CostruisciForm();
}

void ucIstituto::CostruisciForm() {
    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lblCodice = NuovaEtichetta(16, QStringLiteral("Sigla Istituto"));
    DCCodice = NuovaCombo(QStringLiteral("DCCodice"), QString(), true);
    QLabel* lblTipologia = NuovaEtichetta(1, QStringLiteral("Tipologia"));
    cmbTipologiaIS =
        NuovaCombo(QStringLiteral("cmbTipologiaIS"), QStringLiteral("Selezionare una tipologia"));
    QLabel* lblLink = NuovaEtichetta(13, QStringLiteral("Link ad altre risorse web"));
    QPlainTextEdit* txtLink = NuovoTestoMultiRiga(13, 128);
    QLabel* lblNote = NuovaEtichetta(12, QStringLiteral("Note"));
    QPlainTextEdit* txtNote = NuovoTestoMultiRiga(12, 1024);
    QLabel* lblOrario = NuovaEtichetta(11, QStringLiteral("Orario"));
    QLineEdit* txtOrario = NuovoTesto(11, 128, QStringLiteral("Inserire l'Orario"));
    QLabel* lblDirettore = NuovaEtichetta(10, QStringLiteral("Direttore"));
    QLineEdit* txtDirettore = NuovoTesto(10, 256, QStringLiteral("Inserire il Direttore"));
    QLabel* lblWeb = NuovaEtichetta(9, QStringLiteral("Link al sito web"));
    QPlainTextEdit* txtWeb = NuovoTestoMultiRiga(9, 128);
    QLabel* lblEMail = NuovaEtichetta(8, QStringLiteral("EMail"));
    QLineEdit* txtEMail = NuovoTesto(8, 64, QStringLiteral("Inserire l'E-Mail"));
    QLabel* lblFax = NuovaEtichetta(7, QStringLiteral("Fax"));
    QLineEdit* txtFax = NuovoTesto(7, 64);
    QLabel* lblTelefono = NuovaEtichetta(6, QStringLiteral("Telefono"));
    QLineEdit* txtTelefono = NuovoTesto(6, 64, QStringLiteral("Inserire il telefono"));
    QLabel* lblCitta = NuovaEtichetta(3, QStringLiteral("Città"));
    QLineEdit* txtCitta = NuovoTesto(3, 64, QStringLiteral("Inserire la città"));
    QLabel* lblIndirizzo = NuovaEtichetta(2, QStringLiteral("Indirizzo"));
    QLineEdit* txtIndirizzo = NuovoTesto(2, 64, QStringLiteral("Inserire l'indirizzo"));
    QLabel* lblDenominazione = NuovaEtichetta(0, QStringLiteral("Denominazione Istituto"));
    QLineEdit* txtDenominazione = NuovoTesto(0, 256, QStringLiteral("Inserire denominazione"));
    QLabel* lblCap = NuovaEtichetta(4, QStringLiteral("CAP"));
    QLineEdit* txtCap = NuovoTesto(4, 6, QStringLiteral("Inserire il Cap"));
    QLabel* lblNoteDirezione = NuovaEtichetta(14, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txtNoteDirezione = NuovoTestoMultiRiga(14, 1024);
    QLabel* lblPubblica = NuovaEtichetta(15, QStringLiteral("Visibile sul web"));
    chkPubblicaIst = NuovaCasella(QStringLiteral("chkPubblicaIst"));
    QLabel* lblProvincia = NuovaEtichetta(5, QStringLiteral("Provincia"));
    DCProvincia =
        NuovaCombo(QStringLiteral("DCProvincia"), QStringLiteral("Inserire la Provincia"), true);

    // On screen: who and what, then where, then how to reach it, then the notes.
    auto* griglia = new QGridLayout(this);
    int riga = 0;
    const auto metti = [&](QLabel* etichetta, QWidget* campo) {
        etichetta->setBuddy(campo);
        griglia->addWidget(etichetta, riga, 0, Qt::AlignTop);
        griglia->addWidget(campo, riga, 1);
        ++riga;
    };
    metti(lblCodice, DCCodice);
    metti(lblTipologia, cmbTipologiaIS);
    metti(lblDenominazione, txtDenominazione);
    metti(lblIndirizzo, txtIndirizzo);
    metti(lblCitta, txtCitta);
    metti(lblCap, txtCap);
    metti(lblProvincia, DCProvincia);
    metti(lblTelefono, txtTelefono);
    metti(lblFax, txtFax);
    metti(lblEMail, txtEMail);
    metti(lblWeb, txtWeb);
    metti(lblDirettore, txtDirettore);
    metti(lblOrario, txtOrario);
    metti(lblLink, txtLink);
    metti(lblNote, txtNote);
    metti(lblNoteDirezione, txtNoteDirezione);
    metti(lblPubblica, chkPubblicaIst);
    griglia->setRowStretch(riga, 1);
    for (QPlainTextEdit* multiRiga : {txtLink, txtWeb})
        multiRiga->setMaximumHeight(multiRiga->fontMetrics().lineSpacing() * 3);

    connect(cmbTipologiaIS, &QComboBox::currentIndexChanged, this, [this] { TipologiaCliccata(); });
    connect(chkPubblicaIst, &QCheckBox::clicked, this, [this] { PubblicaCliccata(); });
}

// --- The protocol ------------------------------------------------------------------------

void ucIstituto::Init() {
    CaricaCodici();
    CaricaProvince();
    lIdPadre = 0;
    lIdElemento = 0;
    lIdIstitutoRiga = 0;
    ID_Istituto = 0;
    OkNuovoInventario = OkNuovoComplesso = OkNuovoVersamento = false;
    OkModifica = OkAltreDenominazioni = OkCancella = false;
    OkNuovoIstituto = true;
    CaricaLista(cmbTipologiaIS, QStringLiteral("TipologiaIST.txt"));
    BloccaCampi();
}

void ucIstituto::Nuovo() {
    Pulisci();
    {
        const QSignalBlocker blocco(cmbTipologiaIS);
        cmbTipologiaIS->setCurrentIndex(Sessione::bIstituto ? 0 : 1);
    }
    TipologiaCliccata();
    chkPubblicaIst->setChecked(true);
    SbloccaCampi();
}

void ucIstituto::Mostra(long IDElem) {
    lIdElemento = IDElem;
    bool bPubblicato = false;
    lIdPadre = 0;
    if (LeggiElemento(IDElem, lIdPadre, bPubblicato))
        chkPubblicaIst->setChecked(bPubblicato);

    QSqlQuery riga = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    const bool bTrovato = riga.next();
    if (!bTrovato) {
        Pulisci();
        LeggiStato(false, QString(), 0);
        BloccaCampi();
        return;
    }
    ImpostaTestoDi(Testo(0), riga.value(0).toString());
    {
        const QSignalBlocker blocco(cmbTipologiaIS);
        ImpostaTesto(cmbTipologiaIS, CercaTipologiaIS(riga.value(1).toString()));
    }
    TipologiaCliccata();
    ImpostaTestoDi(Testo(2), riga.value(2).toString());
    ImpostaTestoDi(Testo(3), riga.value(3).toString());
    ImpostaTestoDi(Testo(4), riga.value(4).toString());
    ImpostaTestoDi(Testo(6), riga.value(6).toString());
    ImpostaTestoDi(Testo(7), riga.value(7).toString());
    ImpostaTestoDi(Testo(8), riga.value(8).toString());
    ImpostaTestoDi(Testo(9), riga.value(9).toString());
    ImpostaTestoDi(Testo(10), riga.value(10).toString());
    ImpostaTestoDi(Testo(11), riga.value(11).toString());
    ImpostaTestoDi(Testo(12), riga.value(12).toString());
    ImpostaTestoDi(Testo(13), riga.value(13).toString());
    ImpostaTestoDi(Testo(14), riga.value(14).toString());

    // The data combos read their lists again, then show the row of the stored code.
    CaricaProvince();
    DCProvincia->setCurrentIndex(DCProvincia->findData(riga.value(5).toString()));
    CaricaCodici();
    DCCodice->setCurrentIndex(IndiceDelNumero(DCCodice, riga.value(21).toLongLong()));

    LeggiStato(true, riga.value(1).toString(), static_cast<long>(riga.value(20).toLongLong()));
    BloccaCampi();
}

void ucIstituto::Salva(long IDElem) {
    lIdElemento = IDElem;
    const Connessione& cnn = *Sessione::cnn;
    bool bTrovata = false;
    long lIdRiga = 0;
    QVariant tipologia;
    // The row of Elementi and the row of Istituti are written together or not at all; an error
    // goes on to the host.
    InTransazione(cnn.Db(), QStringLiteral("ucIstituto.Salva"), [&] {
        SalvaElemento(IDElem, chkPubblicaIst);
        QSqlQuery riga = cnn.Esegui(SqlSalva, {Id(IDElem)});
        if (!riga.next())
            return;
        bTrovata = true;
        lIdRiga = static_cast<long>(riga.value(20).toLongLong());

        QVariant codice = ColonnaTesto(QVariant());
        QVariant sigla = ColonnaTesto(QVariant());
        if (!DCCodice->currentText().isEmpty()) {
            QSqlQuery voce =
                cnn.Esegui(QStringLiteral("SELECT ISAD_Codice, ISAD_Sigla FROM "
                                          "CodiciIstituto WHERE ID_CodiceIstituto = ?"),
                           {QVariant(TestoLegato(DCCodice).toLongLong())});
            if (voce.next()) {
                codice = ColonnaTesto(voce.value(0));
                sigla = ColonnaTesto(voce.value(1));
            }
        }
        tipologia = CodiceDueCifre(cmbTipologiaIS);
        cnn.Esegui(SqlScrivi,
                   {TestoODefault(TestoDi(Testo(0))), tipologia, TestoInColonna(2),
                    TestoInColonna(3), TestoInColonna(4),
                    ColonnaTesto(NullSeVuoto(TestoLegato(DCProvincia))), TestoInColonna(6),
                    TestoInColonna(7), TestoInColonna(8), TestoInColonna(9), TestoInColonna(10),
                    TestoInColonna(11), TestoInColonna(12), TestoInColonna(13), TestoInColonna(14),
                    codice, sigla, Id(IDElem)});
    });
    if (!bTrovata) {
        // No detail row: only the row of Elementi written, nothing said; the editor is left as
        // after Mostra of a record that is not there, locked and with the flags of a missing
        // row.
        LeggiStato(false, QString(), 0);
        BloccaCampi();
        return;
    }
    LeggiStato(true, ENull(tipologia) ? QString() : tipologia.toString(), lIdRiga);
    BloccaCampi();
}

void ucIstituto::Annulla() {
    BloccaCampi();
}

void ucIstituto::AssegnaIstituto(long tempID_Istituto) {
    ID_Istituto = tempID_Istituto;
}

QString ucIstituto::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

QString ucIstituto::CercaTipologiaIS(const QString& sCodice) const {
    return CercaTesto(cmbTipologiaIS, sCodice);
}

// --- The kind of institute ---------------------------------------------------------------

void ucIstituto::TipologiaCliccata() {
    const int indice = cmbTipologiaIS->currentIndex();
    // On an "S" site the first kind is stored as "02" from the first time it is chosen on,
    // for the life of this editor: such a site never creates a row of kind "01".
    if (cmbTipologiaIS->isEnabled() && !Sessione::bIstituto && indice >= 0 &&
        cmbTipologiaIS->itemData(indice).toLongLong() == 1)
        cmbTipologiaIS->setItemData(indice, QVariant(qlonglong(2)));

    const bool bSede = indice == VoceSede;
    const bool bMagazzino = indice == VoceMagazzino;
    const bool bIstitutoVero = !bSede && !bMagazzino;

    const auto mostra = [this](int n, bool bVisibile) {
        Testo(n)->setVisible(bVisibile);
        Etichetta(n)->setVisible(bVisibile);
    };

    DCCodice->setVisible(bIstitutoVero);
    Etichetta(16)->setVisible(bIstitutoVero);
    DCCodice->setProperty(Tag, bIstitutoVero ? QStringLiteral("Inserire un codice istituto")
                                             : QString());

    // Phone, e-mail, hours and fax: on an institute and a seat, not on a warehouse.
    for (int n : {6, 7, 8, 11})
        mostra(n, !bMagazzino);
    Testo(6)->setProperty(Tag, bMagazzino ? QString() : QStringLiteral("Inserire il telefono"));
    Testo(8)->setProperty(Tag, bMagazzino ? QString() : QStringLiteral("Inserire l'E-mail"));
    Testo(11)->setProperty(Tag, bMagazzino ? QString() : QStringLiteral("Inserire l'orario"));

    // Web, director, link and publishing: on an institute only.
    for (int n : {9, 10, 13})
        mostra(n, bIstitutoVero);
    chkPubblicaIst->setVisible(bIstitutoVero);
    Etichetta(15)->setVisible(bIstitutoVero);
    Testo(10)->setProperty(Tag,
                           bIstitutoVero ? QStringLiteral("Inserire il Direttore") : QString());
}

// --- Publishing --------------------------------------------------------------------------

void ucIstituto::PubblicaCliccata() {
    if (lIdPadre > 0)
        ControllaPubblicazione(chkPubblicaIst, lIdPadre,
                               QStringLiteral("Istituto non pubblicabile"),
                               QStringLiteral("Errore U2"));
}

// --- Data combos -------------------------------------------------------------------------

void ucIstituto::CaricaCodici() {
    const QSignalBlocker blocco(DCCodice);
    DCCodice->clear();
    QSqlQuery righe = Sessione::cnn->Esegui(
        QStringLiteral("SELECT * FROM CodiciIstituto ORDER BY Denominazione"));
    const QSqlRecord campi = righe.record();
    const int iTesto = campi.indexOf(QStringLiteral("Denominazione"));
    const int iChiave = campi.indexOf(QStringLiteral("ID_CodiceIstituto"));
    while (righe.next())
        DCCodice->addItem(righe.value(iTesto).toString(),
                          QVariant(righe.value(iChiave).toLongLong()));
    DCCodice->setCurrentIndex(-1);
}

void ucIstituto::CaricaProvince() {
    const QSignalBlocker blocco(DCProvincia);
    DCProvincia->clear();
    QSqlQuery righe =
        Sessione::cnn->Esegui(QStringLiteral("SELECT * FROM Provincie ORDER BY NomeProvincia"));
    const QSqlRecord campi = righe.record();
    const int iTesto = campi.indexOf(QStringLiteral("NomeProvincia"));
    const int iChiave = campi.indexOf(QStringLiteral("Provincia"));
    while (righe.next())
        DCProvincia->addItem(righe.value(iTesto).toString(), righe.value(iChiave).toString());
    DCProvincia->setCurrentIndex(-1);
}

// --- State -------------------------------------------------------------------------------

void ucIstituto::LeggiStato(bool bTrovato, const QString& sTipologia, long lIdRiga) {
    lIdIstitutoRiga = lIdRiga;
    if (!bTrovato) {
        OkNuovoIstituto = Sessione::bIstituto;
        OkNuovoInventario = OkNuovoComplesso = OkNuovoVersamento = false;
        OkModifica = OkAltreDenominazioni = OkCancella = false;
        ID_Istituto = 0;
        return;
    }
    OkModifica = true;
    OkAltreDenominazioni = false;

    const bool bSede = sTipologia == Sede;
    const bool bMagazzino = sTipologia == Magazzino;
    if (bSede || bMagazzino) {
        // Nothing is created under a seat or a warehouse; its institute is the one above.
        QSqlQuery sopra = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Istituti.ID_Istituto FROM Istituti JOIN Elementi ON "
                           "Elementi.ID_ElementoPadre = Istituti.ID_Elemento "
                           "WHERE Elementi.ID_Elemento = ?"),
            {Id(lIdElemento)});
        AssegnaIstituto(sopra.next() ? static_cast<long>(sopra.value(0).toLongLong()) : 0);
        OkNuovoIstituto = OkNuovoInventario = OkNuovoComplesso = OkNuovoVersamento = false;
    } else {
        AssegnaIstituto(lIdRiga);
        OkNuovoIstituto = OkNuovoInventario = OkNuovoComplesso = OkNuovoVersamento = true;
    }

    if (sTipologia == Istituto) {
        OkCancella = false;
        return;
    }
    OkCancella = FigliElemento(lIdElemento) == 0;
    if (OkCancella && (bSede || bMagazzino)) {
        const QString sColonna =
            bSede ? QStringLiteral("ID_IstitutoSede") : QStringLiteral("ID_IstitutoMag");
        OkCancella =
            NessunaRiga(QStringLiteral("SELECT * FROM ComplessiDoc WHERE %1 = ?").arg(sColonna),
                        {Id(lIdRiga)}) &&
            NessunaRiga(QStringLiteral("SELECT * FROM Inventari WHERE %1 = ?").arg(sColonna),
                        {Id(lIdRiga)});
    }
}
