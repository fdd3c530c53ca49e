#include "EditoreRecord.h"

#include "session/Conversioni.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/LetturaLista.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/Connessione.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDateEdit>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSqlQuery>
#include <QStyle>
#include <QTextCursor>
#include <QTimer>
#include <utility>

namespace {

const char* const Tag = "Tag";

// The number at the head of a code, as the item data holds it.
long NumeroCodice(const QString& sCodice) {
    return static_cast<long>(Val(sCodice));
}

QString NomeArray(const char* sArray, int indice) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(sArray)).arg(indice);
}

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(QStringLiteral("EditoreRecord"),
                     QStringLiteral("La connessione al database è chiusa."));
    return *Sessione::cnn;
}

// True while a refused box shows its message and takes the focus back: the focus that passes
// meanwhile through other boxes is no leave of theirs.
bool bInControllo = false;

// Eats the press of a mouse button that is being delivered (the one whose focus change was
// refused) and goes away; it goes away at the next turn of the event loop too, when no press
// comes (a focus moved by the wheel).
class ScartaPressione : public QObject {
public:
    ScartaPressione() {
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, [this] { Fine(); });
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::MouseButtonPress &&
            evento->type() != QEvent::MouseButtonDblClick)
            return QObject::eventFilter(oggetto, evento);
        evento->accept();
        Fine();
        return true;
    }

private:
    void Fine() {
        qApp->removeEventFilter(this);
        deleteLater();
    }
};

// The check of one box on leaving it, living as long as the box.
class ControlloUscita : public QObject {
public:
    ControlloUscita(QWidget* campo, std::function<QString()> leggi,
                    std::function<QString(const QString&)> controlla, bool bRifiutaUscita,
                    Icona iconaMessaggio = Icona::Informazione,
                    QString sTitoloMessaggio = QStringLiteral("Attenzione"))
        : QObject(campo)
        , casella(campo)
        , testo(std::move(leggi))
        , verifica(std::move(controlla))
        , bRifiuta(bRifiutaUscita)
        , icona(iconaMessaggio)
        , sTitolo(std::move(sTitoloMessaggio)) {
        casella->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (oggetto != casella || evento->type() != QEvent::FocusOut)
            return QObject::eventFilter(oggetto, evento);
        // Not a leave: the window only loses the activation, or a popup opens, or the program
        // locks the box (after a save, a cancel).
        const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (bInControllo || motivo == Qt::ActiveWindowFocusReason ||
            motivo == Qt::PopupFocusReason || !casella->isEnabled())
            return false;
        const QString sMessaggio = verifica(testo());
        if (sMessaggio.isEmpty())
            return false;
        bInControllo = true;
        MsgBox(sMessaggio, Pulsanti::Ok, icona, sTitolo);
        const bool bRiprende = casella->isVisible();
        if (bRiprende)
            casella->setFocus(Qt::OtherFocusReason);
        bInControllo = false;
        if (!bRiprende)
            return false;
        // The press that moved the focus is delivered right after this event.
        if (bRifiuta && motivo == Qt::MouseFocusReason)
            new ScartaPressione;
        // The box has the focus again: it never lost it.
        return true;
    }

private:
    QWidget* casella;
    std::function<QString()> testo;
    std::function<QString(const QString&)> verifica;
    bool bRifiuta;
    Icona icona;
    QString sTitolo;
};

} // namespace

const QString EditoreRecord::InserireValore = QStringLiteral("<<Inserire valore>>");

EditoreRecord::EditoreRecord(QWidget* parent)
    : QWidget(parent) {}

EditoreRecord::~EditoreRecord() = default;

// --- The protocol ------------------------------------------------------------------------

QList<QWidget*> EditoreRecord::Controls() const {
    return controlli;
}

void EditoreRecord::Init() {
    BloccaCampi();
}

void EditoreRecord::Nuovo() {
    Pulisci();
    SbloccaCampi();
}

void EditoreRecord::Mostra(long IDElem) {
    Q_UNUSED(IDElem);
    BloccaCampi();
}

void EditoreRecord::Modifica() {
    SbloccaCampi();
}

bool EditoreRecord::CheckMandatoryFields() {
    for (QWidget* controllo : Controls()) {
        const bool bTesto = qobject_cast<QLineEdit*>(controllo) != nullptr ||
                            qobject_cast<QPlainTextEdit*>(controllo) != nullptr;
        auto* combo = qobject_cast<QComboBox*>(controllo);
        auto* casella = qobject_cast<QCheckBox*>(controllo);
        if (!bTesto && combo == nullptr && casella == nullptr)
            continue; // date pickers, labels, buttons: never checked
        const QString sTag = controllo->property(Tag).toString();
        if (sTag.isEmpty())
            continue;
        QString sTesto;
        if (bTesto)
            sTesto = TestoDi(controllo);
        else if (combo != nullptr)
            sTesto = combo->currentText();
        else
            sTesto = casella->text();
        sTesto = Trim(sTesto);
        if (sTesto.isEmpty() || sTesto == InserireValore) {
            MsgBox(sTag, Pulsanti::Ok, Icona::Informazione, QStringLiteral("Attenzione"));
            if (controllo->isEnabled() && controllo->isVisible())
                controllo->setFocus();
            return false;
        }
    }
    return true;
}

void EditoreRecord::Salva(long IDElem) {
    Q_UNUSED(IDElem);
    BloccaCampi();
}

void EditoreRecord::Annulla() {
    BloccaCampi();
}

QString EditoreRecord::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

bool EditoreRecord::SalvaMostrandoLErrore(long IDElem) {
    QString sTesto;
    try {
        Salva(IDElem);
        return true;
    } catch (const Errore& errore) {
        sTesto = errore.testo();
    } catch (const std::exception& errore) {
        sTesto = QString::fromUtf8(errore.what());
    }
    MsgBox(sTesto, Pulsanti::Ok, Icona::Critica);
    Annulla();
    return false;
}

// --- Lookup lists ------------------------------------------------------------------------

void EditoreRecord::CaricaLista(QComboBox* cmb, const QString& sFile) {
    CaricaListaSenza(cmb, sFile, QString());
}

void EditoreRecord::CaricaListaUnCarattere(QComboBox* cmb, const QString& sFile) {
    const QStringList voci = LeggiLista(Sessione::FileProgramma(sFile), sFile);
    const QSignalBlocker blocco(cmb);
    const int iScelta = cmb->currentIndex();
    for (const QString& voce : voci) {
        const long codice = voce.isEmpty() ? 0 : static_cast<long>(voce.at(0).unicode());
        cmb->addItem(voce.mid(1), QVariant(qlonglong(codice)));
    }
    cmb->setCurrentIndex(iScelta);
}

void EditoreRecord::CaricaListaConVoceVuota(QComboBox* cmb, const QString& sFile) {
    {
        const QSignalBlocker blocco(cmb);
        const int iScelta = cmb->currentIndex();
        cmb->addItem(QString(), QVariant(qlonglong(0)));
        cmb->setCurrentIndex(iScelta);
    }
    CaricaLista(cmb, sFile);
}

void EditoreRecord::CaricaListaSenza(QComboBox* cmb, const QString& sFile, const QString& sCodice) {
    const QStringList voci = LeggiLista(Sessione::FileProgramma(sFile), sFile);
    // Appending chooses nothing: the entry in hand, if any, stays the one chosen.
    const QSignalBlocker blocco(cmb);
    const int iScelta = cmb->currentIndex();
    for (const QString& voce : voci) {
        if (!sCodice.isEmpty() && voce.left(2) == sCodice)
            continue;
        cmb->addItem(voce.mid(2), QVariant(qlonglong(NumeroCodice(voce.left(2)))));
    }
    cmb->setCurrentIndex(iScelta);
}

void EditoreRecord::CaricaListaCoppie(QComboBox* cmb, const QString& sFile) {
    const QStringList voci = LeggiLista(Sessione::FileProgramma(sFile), sFile);
    const QSignalBlocker blocco(cmb);
    const int iScelta = cmb->currentIndex();
    for (qsizetype i = 0; i < voci.size(); i += 2) {
        cmb->addItem(voci.value(i + 1), QVariant(qlonglong(NumeroCodice(voci.at(i).left(2)))));
    }
    cmb->setCurrentIndex(iScelta);
}

int EditoreRecord::IndiceDelNumero(const QComboBox* cmb, qlonglong numero) {
    for (int i = 0; i < cmb->count(); ++i) {
        if (cmb->itemData(i).toLongLong() == numero)
            return i;
    }
    return -1;
}

int EditoreRecord::CercaIndice(const QComboBox* cmb, const QString& sCodice) {
    return IndiceDelNumero(cmb, NumeroCodice(sCodice));
}

QString EditoreRecord::CercaTesto(const QComboBox* cmb, const QString& sCodice) {
    const int indice = CercaIndice(cmb, sCodice);
    return indice < 0 ? QString() : cmb->itemText(indice);
}

void EditoreRecord::ImpostaTesto(QComboBox* cmb, const QString& sTesto) {
    cmb->setCurrentIndex(sTesto.isEmpty() ? -1 : cmb->findText(sTesto, Qt::MatchExactly));
}

QVariant EditoreRecord::CodiceDueCifre(const QComboBox* cmb) {
    const QString sCodice = (QStringLiteral("00") + CodiceVoceScelta(cmb)).right(2);
    if (sCodice == QLatin1String("00"))
        return QVariant(QMetaType::fromType<QString>());
    return QVariant(sCodice);
}

QString EditoreRecord::TestoLegato(const QComboBox* cmb) {
    if (cmb == nullptr || cmb->currentIndex() < 0)
        return QString();
    return cmb->itemData(cmb->currentIndex()).toString();
}

// --- Money values ------------------------------------------------------------------------

QString EditoreRecord::FormatoValore(double valore) {
    if (!(valore > 0.0))
        return QString();
    QString testo = NumeroItaliano(valore, 2);
    // "#" stands for digits that are there: no leading zero before the comma.
    if (testo.startsWith(QLatin1String("0,")))
        testo.remove(0, 1);
    return testo;
}

// --- Child-list buttons ------------------------------------------------------------------

void EditoreRecord::ColoraPulsante(QAbstractButton* pulsante, bool bHaRighe) {
    const QPalette sistema = QApplication::palette();
    QPalette tavolozza = pulsante->palette();
    tavolozza.setColor(QPalette::Button,
                       sistema.color(bHaRighe ? QPalette::Base : QPalette::Button));
    pulsante->setPalette(tavolozza);
    pulsante->setAutoFillBackground(true);
}

// --- Existence tests ---------------------------------------------------------------------

bool EditoreRecord::NessunaRiga(const QString& sSql, std::initializer_list<QVariant> valori) {
    QSqlQuery query = Cnn().Esegui(sSql, valori);
    return !query.next();
}

long EditoreRecord::FigliElemento(long lIdElemento) {
    QSqlQuery query =
        Cnn().Esegui(QStringLiteral("SELECT Figli FROM Elementi WHERE ID_Elemento = ?"),
                     {QVariant(qlonglong(lIdElemento))});
    if (!query.next())
        return 0;
    return static_cast<long>(query.value(0).toLongLong());
}

void EditoreRecord::RileggiOkCancella(long lIdElemento) {
    OkCancella = lIdElemento != 0 && FigliElemento(lIdElemento) == 0;
}

// --- Controls ----------------------------------------------------------------------------

void EditoreRecord::Registra(QWidget* controllo) {
    controlli.append(controllo);
}

void EditoreRecord::RegistraPulsanteFiglio(QAbstractButton* pulsante) {
    pulsantiFigli.append(pulsante);
}

void EditoreRecord::RegistraSoloLettura(QWidget* controllo) {
    soloLettura.append(controllo);
}

int EditoreRecord::LarghezzaPer(const QLineEdit* casella, const QString& sCampione) {
    const int iCornice =
        casella->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, casella);
    return casella->fontMetrics().horizontalAdvance(sCampione) + 2 * (iCornice + 2);
}

QLineEdit* EditoreRecord::NuovoTesto(int indice, int iMax, const QString& sTag) {
    auto* testo = new QLineEdit(this);
    testo->setObjectName(NomeArray("Text1", indice));
    if (iMax > 0)
        testo->setMaxLength(iMax);
    testo->setProperty(Tag, sTag);
    Registra(testo);
    return testo;
}

QPlainTextEdit* EditoreRecord::NuovoTestoMultiRiga(int indice, int iMax, const QString& sTag) {
    auto* testo = new QPlainTextEdit(this);
    testo->setObjectName(NomeArray("Text1", indice));
    testo->setTabChangesFocus(true);
    testo->setProperty(Tag, sTag);
    testo->setProperty("MaxLength", iMax);
    if (iMax > 0) {
        // The box takes no more than its column holds.
        connect(testo, &QPlainTextEdit::textChanged, testo, [testo, iMax] {
            const QString s = testo->toPlainText();
            if (s.size() > iMax) {
                QTextCursor cursore = testo->textCursor();
                const int posizione = qMin(cursore.position(), iMax);
                testo->setPlainText(s.left(iMax));
                cursore = testo->textCursor();
                cursore.setPosition(posizione);
                testo->setTextCursor(cursore);
            }
        });
    }
    Registra(testo);
    return testo;
}

QLabel* EditoreRecord::NuovaEtichetta(int indice, const QString& sTesto) {
    auto* etichetta = new QLabel(sTesto, this);
    etichetta->setObjectName(NomeArray("Label1", indice));
    return etichetta;
}

QComboBox* EditoreRecord::NuovaCombo(const QString& sNome, const QString& sTag, bool bDati) {
    auto* combo = new QComboBox(this);
    combo->setObjectName(sNome);
    combo->setProperty(Tag, sTag);
    combo->setProperty("ComboDati", bDati);
    Registra(combo);
    return combo;
}

QComboBox* EditoreRecord::NuovaComboModificabile(const QString& sNome, int iMax,
                                                 const QString& sMessaggio, const QString& sTag) {
    QComboBox* combo = NuovaCombo(sNome, sTag);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    new ControlloUscita(
        combo, [combo] { return combo->currentText(); },
        [iMax, sMessaggio](const QString& sTesto) {
            return sTesto.size() > iMax ? sMessaggio : QString();
        },
        true, Icona::Esclamazione, QString());
    return combo;
}

QCheckBox* EditoreRecord::NuovaCasella(const QString& sNome, const QString& sTag) {
    auto* casella = new QCheckBox(this);
    casella->setObjectName(sNome);
    casella->setProperty(Tag, sTag);
    Registra(casella);
    return casella;
}

QDateEdit* EditoreRecord::NuovaData(const QString& sNome, const QString& sTag) {
    auto* dtp = new QDateEdit(QDate::currentDate(), this);
    dtp->setObjectName(sNome);
    dtp->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    dtp->setCalendarPopup(true);
    dtp->setProperty(Tag, sTag);
    Registra(dtp);
    return dtp;
}

QWidget* EditoreRecord::Testo(int indice) const {
    return findChild<QWidget*>(NomeArray("Text1", indice));
}

QLabel* EditoreRecord::Etichetta(int indice) const {
    return findChild<QLabel*>(NomeArray("Label1", indice));
}

QString EditoreRecord::TestoDi(const QWidget* controllo) {
    if (const auto* riga = qobject_cast<const QLineEdit*>(controllo))
        return riga->text();
    if (const auto* multiRiga = qobject_cast<const QPlainTextEdit*>(controllo))
        return multiRiga->toPlainText();
    return QString();
}

void EditoreRecord::ImpostaTestoDi(QWidget* controllo, const QString& sTesto) {
    if (auto* riga = qobject_cast<QLineEdit*>(controllo))
        riga->setText(sTesto);
    else if (auto* multiRiga = qobject_cast<QPlainTextEdit*>(controllo))
        multiRiga->setPlainText(sTesto);
}

// --- Checks on leaving a box -------------------------------------------------------------

void EditoreRecord::ControllaAllUscita(QWidget* casella,
                                       std::function<QString(const QString& sTesto)> verifica,
                                       Uscita modo) {
    // One check a box: a new one takes the place of the old.
    const QObjectList figli = casella->children();
    for (QObject* figlio : figli) {
        if (dynamic_cast<ControlloUscita*>(figlio) != nullptr)
            delete figlio;
    }
    new ControlloUscita(
        casella, [casella] { return TestoDi(casella); }, std::move(verifica),
        modo == Uscita::Rifiuta);
}

QString EditoreRecord::DataErrata(const QString& sTesto) {
    const QString s = Trim(sTesto);
    if (!s.isEmpty() && !IsDate(s))
        return QStringLiteral("Data errata");
    return QString();
}

QString EditoreRecord::AnnoErrato(const QString& sTesto) {
    if (!sTesto.isEmpty() && (sTesto.size() < 3 || !IsNumeric(sTesto)))
        return QStringLiteral("Anno errato");
    return QString();
}

QString EditoreRecord::NumeroErrato(const QString& sTesto) {
    if (!sTesto.isEmpty() && !IsNumeric(sTesto))
        return QStringLiteral("Numero errato");
    return QString();
}

// --- Lock, unlock, clear -----------------------------------------------------------------

void EditoreRecord::BloccaCampi() {
    BloccaControlli(Controls());
    for (QAbstractButton* pulsante : std::as_const(pulsantiFigli))
        pulsante->setEnabled(true);
}

void EditoreRecord::SbloccaCampi() {
    SbloccaControlli(Controls());
    for (QAbstractButton* pulsante : std::as_const(pulsantiFigli))
        pulsante->setEnabled(false);
    for (QWidget* controllo : std::as_const(soloLettura))
        controllo->setEnabled(false);
    if (QWidget* denominazione = Testo(0); denominazione != nullptr && denominazione->isEnabled())
        denominazione->setFocus();
}

void EditoreRecord::Pulisci() {
    for (QWidget* controllo : Controls()) {
        if (qobject_cast<QLineEdit*>(controllo) != nullptr ||
            qobject_cast<QPlainTextEdit*>(controllo) != nullptr)
            ImpostaTestoDi(controllo, QString());
        else if (auto* casella = qobject_cast<QCheckBox*>(controllo))
            casella->setChecked(false);
        else if (auto* combo = qobject_cast<QComboBox*>(controllo))
            combo->setCurrentIndex(-1);
        else if (auto* dtp = qobject_cast<QDateEdit*>(controllo))
            dtp->setDate(QDate::currentDate());
    }
}

// --- Salva, publishing -------------------------------------------------------------------

void EditoreRecord::SalvaElemento(long lIdElemento, const QCheckBox* chkPubblica,
                                  const QDateEdit* dtpRedazione, const QWidget* txtRedattore) {
    const Connessione& cnn = Cnn();
    const QVariant id = QVariant(qlonglong(lIdElemento));
    QSqlQuery riga = cnn.Esegui(
        QStringLiteral("SELECT ID_Elemento, Pubblicato, DataRedazione, Redattore FROM Elementi "
                       "WHERE ID_Elemento = ?"),
        {id});
    if (!riga.next())
        return;
    const QString sPubblicato = (chkPubblica != nullptr && chkPubblica->isChecked())
                                    ? QStringLiteral("S")
                                    : QStringLiteral("N");
    if (dtpRedazione == nullptr && txtRedattore == nullptr) {
        cnn.Esegui(QStringLiteral("UPDATE Elementi SET Pubblicato = ? WHERE ID_Elemento = ?"),
                   {sPubblicato, id});
        return;
    }
    QVariant dataRedazione = riga.value(2);
    if (dtpRedazione != nullptr)
        dataRedazione = ColonnaGiorno(dtpRedazione);
    QVariant redattore = riga.value(3);
    if (txtRedattore != nullptr)
        redattore = NullSeVuoto(TestoDi(txtRedattore));
    if (ENull(redattore))
        redattore = QVariant(QMetaType::fromType<QString>());
    if (ENull(dataRedazione))
        dataRedazione = QVariant(QMetaType::fromType<QDateTime>());
    cnn.Esegui(QStringLiteral("UPDATE Elementi SET Pubblicato = ?, DataRedazione = ?, "
                              "Redattore = ? WHERE ID_Elemento = ?"),
               {sPubblicato, dataRedazione, redattore, id});
}

void EditoreRecord::ControllaPubblicazione(QCheckBox* chkPubblica, long lIdPadre,
                                           const QString& sMessaggio,
                                           const QString& sCodiceErrore) {
    if (!chkPubblica->isChecked())
        return;
    try {
        QSqlQuery padre =
            Cnn().Esegui(QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                         {QVariant(qlonglong(lIdPadre))});
        if (padre.next() && padre.value(0).toString() == QLatin1String("N")) {
            MsgBox(sMessaggio, Pulsanti::Ok, Icona::Informazione, QStringLiteral("Attenzione"));
            chkPubblica->setChecked(false);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, sCodiceErrore);
    }
}

QDate EditoreRecord::GiornoDi(const QVariant& valore) {
    QDate giorno;
    if (!ENull(valore)) {
        giorno = valore.toDateTime().date();
        if (!giorno.isValid())
            giorno = valore.toDate();
    }
    return giorno.isValid() ? giorno : QDate::currentDate();
}

QVariant EditoreRecord::ColonnaGiorno(const QDateEdit* dtp) {
    return QVariant(QDateTime(dtp->date(), QTime(0, 0)));
}

bool EditoreRecord::LeggiElemento(long lIdElemento, long& lIdPadre, bool& bPubblicato) {
    QSqlQuery riga = Cnn().Esegui(
        QStringLiteral("SELECT ID_ElementoPadre, Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
        {QVariant(qlonglong(lIdElemento))});
    if (!riga.next())
        return false;
    lIdPadre = riga.value(0).isNull() ? 0 : static_cast<long>(riga.value(0).toLongLong());
    bPubblicato = riga.value(1).toString() == QLatin1String("S");
    return true;
}

long EditoreRecord::MostraElemento(long lIdElemento, QCheckBox* chkPubblica,
                                   QDateEdit* dtpRedazione, QWidget* txtRedattore,
                                   QString* sMd5Link) {
    QSqlQuery riga =
        Cnn().Esegui(QStringLiteral("SELECT ID_ElementoPadre, Md5Link, Pubblicato, "
                                    "DataRedazione, Redattore FROM Elementi WHERE ID_Elemento = ?"),
                     {QVariant(qlonglong(lIdElemento))});
    if (!riga.next())
        return 0;
    const auto testo = [&riga](int i) {
        return ENull(riga.value(i)) ? QString() : riga.value(i).toString();
    };
    if (sMd5Link != nullptr)
        *sMd5Link = testo(1);
    chkPubblica->setChecked(riga.value(2).toString() == QLatin1String("S"));
    dtpRedazione->setDate(GiornoDi(riga.value(3)));
    ImpostaTestoDi(txtRedattore, testo(4));
    return ENull(riga.value(0)) ? 0 : static_cast<long>(riga.value(0).toLongLong());
}

// --- Values of bound columns ---------------------------------------------------------------

QVariant EditoreRecord::Id(long valore) {
    return QVariant(qlonglong(valore));
}

QVariant EditoreRecord::NullTesto() {
    return QVariant(QMetaType::fromType<QString>());
}

QVariant EditoreRecord::NullNumero() {
    return QVariant(QMetaType::fromType<qlonglong>());
}

QVariant EditoreRecord::ColonnaTesto(const QVariant& valore) {
    return ENull(valore) ? NullTesto() : valore;
}

QVariant EditoreRecord::TestoInColonna(int indice) const {
    return ColonnaTesto(NullSeVuoto(TestoDi(Testo(indice))));
}

long EditoreRecord::Lungo(const QVariant& valore) {
    return ENull(valore) ? 0 : static_cast<long>(valore.toLongLong());
}

QVariant EditoreRecord::ColonnaIntera(const QVariant& valore) {
    if (ENull(valore))
        return NullNumero();
    return QVariant(qlonglong(qRound64(CDbl(valore.toString()))));
}

QVariant EditoreRecord::ColonnaDataCompleta(const QString& sTesto) {
    const QVariant numero = NumeroDaData(sTesto);
    return ENull(numero) ? NullNumero() : numero;
}

QVariant EditoreRecord::TestoNonNullo(const QString& sTesto) {
    return QVariant(sTesto.isNull() ? QStringLiteral("") : sTesto);
}

bool EditoreRecord::ApriDialogo(const QString& sNome, const QVariantMap& argomenti,
                                const std::function<void()>& dopo) {
    if (!Dialoghi::Apri(sNome, this, argomenti))
        return false;
    if (dopo)
        dopo();
    Q_EMIT EventoStato();
    return true;
}
