#include "EditoreProduttore.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSqlQuery>
#include <QStringList>
#include <algorithm>
#include <utility>

namespace {

const QString ProfiliEnti = QStringLiteral("ProfiliEnti.txt");

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(QStringLiteral("EditoreProduttore"),
                     QStringLiteral("La connessione al database è chiusa."));
    return *Sessione::cnn;
}

QString Colonna(const char* sNome) {
    return QLatin1String(sNome);
}

} // namespace

const QString EditoreProduttore::CodiceVuoto = QStringLiteral("  -    -      ");

EditoreProduttore::EditoreProduttore(Tipo tipoProduttore, QWidget* parent)
    : EditoreRecord(parent)
    , tipo(std::move(tipoProduttore)) {
    setObjectName(QLatin1String(tipo.sNomeEditore));

    const auto campoDi = [this](int indice) -> const Campo* {
        for (const Campo& c : tipo.campi) {
            if (c.indice == indice && c.genere != Genere::SoloLettura)
                return &c;
        }
        return nullptr;
    };

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lblData = nullptr;
    QLabel* lblProfili = nullptr;
    for (int indice : tipo.ordine) {
        if (indice == Pubblicato) {
            chkPubblicato = NuovaCasella(QStringLiteral("chkPubblicato"));
            chkPubblicato->setText(QStringLiteral("Visibile sul web"));
        } else if (indice == DataRedazione) {
            lblData = new QLabel(QStringLiteral("Data redazione"), this);
            lblData->setObjectName(QStringLiteral("lblDataRedazione"));
            DTPData = NuovaData(QStringLiteral("DTPData"),
                                QStringLiteral("Inserire la data di registrazione"));
        } else if (indice == tipo.iRedattore) {
            NuovaEtichetta(indice, QStringLiteral("Redattore"));
            NuovoTesto(indice, 64, QStringLiteral("Inserire redattore"));
        } else if (const Campo* c = campoDi(indice)) {
            const QString sTag = QString::fromUtf8(c->sTag);
            if (c->genere == Genere::Profilo) {
                lblProfili = new QLabel(QString::fromUtf8(c->sEtichetta), this);
                lblProfili->setObjectName(QStringLiteral("lblProfili"));
                cmbProfili = NuovaCombo(QStringLiteral("cmbProfili"), sTag);
                continue;
            }
            NuovaEtichetta(indice, QString::fromUtf8(c->sEtichetta));
            if (c->bMultiRiga)
                NuovoTestoMultiRiga(indice, c->iMax, sTag);
            else
                NuovoTesto(indice, c->iMax, sTag);
        }
    }
    lbCodice = new QLabel(CodiceVuoto, this);
    lbCodice->setObjectName(QStringLiteral("lbCodice"));
    lbCodice->setTextInteractionFlags(Qt::TextSelectableByMouse);

    // On screen the fields by their index, the years in Frame1, then who described the
    // producer, when, whether it is published, and its code.
    auto* griglia = new QGridLayout(this);
    Frame1 = new QGroupBox(QString::fromUtf8(tipo.sTitoloFrame), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    auto* anni = new QGridLayout(Frame1);
    QList<const Campo*> visti;
    for (const Campo& c : tipo.campi) {
        if (c.genere != Genere::SoloLettura)
            visti.append(&c);
    }
    std::stable_sort(visti.begin(), visti.end(),
                     [](const Campo* a, const Campo* b) { return a->indice < b->indice; });
    QList<QWidget*> catena;
    int riga = 0;
    int rigaAnni = 0;
    bool bFrameMesso = false;
    const auto metti = [&catena](QGridLayout* g, int r, QLabel* etichetta, QWidget* casella) {
        etichetta->setBuddy(casella);
        g->addWidget(etichetta, r, 0, Qt::AlignTop);
        g->addWidget(casella, r, 1);
        catena.append(casella);
    };
    for (const Campo* c : visti) {
        QWidget* casella = c->genere == Genere::Profilo ? cmbProfili : Testo(c->indice);
        QLabel* etichetta = c->genere == Genere::Profilo ? lblProfili : Etichetta(c->indice);
        if (c->genere == Genere::AnnoInizio || c->genere == Genere::AnnoFine) {
            metti(anni, rigaAnni++, etichetta, casella);
            if (!bFrameMesso) {
                griglia->addWidget(Frame1, riga++, 0, 1, 2);
                bFrameMesso = true;
            }
            continue;
        }
        metti(griglia, riga++, etichetta, casella);
    }
    metti(griglia, riga++, Etichetta(tipo.iRedattore), Testo(tipo.iRedattore));
    metti(griglia, riga++, lblData, DTPData);
    griglia->addWidget(chkPubblicato, riga, 1);
    catena.append(chkPubblicato);
    griglia->addWidget(lbCodice, riga, 0);
    griglia->setColumnStretch(1, 1);
    // Room left over goes below the form, not into the frame of the years.
    griglia->setRowStretch(riga + 1, 1);
    for (auto* blocco : findChildren<QPlainTextEdit*>())
        blocco->setMaximumHeight(blocco->fontMetrics().lineSpacing() * 5);

    // The keyboard walks the form as it is seen.
    for (qsizetype i = 1; i < catena.size(); ++i)
        setTabOrder(catena.at(i - 1), catena.at(i));
}

EditoreProduttore::~EditoreProduttore() = default;

// --- The protocol --------------------------------------------------------------------------

void EditoreProduttore::Init() {
    if (cmbProfili != nullptr) {
        cmbProfili->clear();
        CaricaListaCoppie(cmbProfili, ProfiliEnti);
        cmbProfili->setCurrentIndex(-1);
    }
    // Nothing in hand: a new producer may be made, nothing else.
    LeggiStato(false, 0, 0);
    BloccaCampi();
}

void EditoreProduttore::Nuovo() {
    Pulisci();
    if (cmbProfili != nullptr)
        cmbProfili->setCurrentIndex(-1);
    SbloccaCampi();
}

void EditoreProduttore::Mostra(long ID_Soggetto) {
    Pulisci();
    const Connessione& cnn = Cnn();
    const QVariant id = Id(ID_Soggetto);

    QSqlQuery soggetto = cnn.Esegui(QStringLiteral("SELECT Pubblicato, DataRedazione, Redattore "
                                                   "FROM Soggetti WHERE ID_Soggetto = ?"),
                                    {id});
    if (!soggetto.next()) {
        chkPubblicato->setChecked(false);
    } else {
        chkPubblicato->setChecked(soggetto.value(0).toString() == QLatin1String("S"));
        DTPData->setDate(GiornoDi(soggetto.value(1)));
        ImpostaTestoDi(Testo(tipo.iRedattore),
                       ENull(soggetto.value(2)) ? QString() : soggetto.value(2).toString());
    }

    QSqlQuery riga = cnn.Esegui(SqlMostra(), {id});
    const bool bTrovata = riga.next();
    const int iChiave = static_cast<int>(tipo.campi.size());
    LeggiStato(bTrovata, bTrovata ? Lungo(riga.value(iChiave)) : 0, ID_Soggetto);
    if (bTrovata) {
        for (int i = 0; i < tipo.campi.size(); ++i) {
            const Campo& c = tipo.campi.at(i);
            const QString sValore = riga.value(i).toString();
            switch (c.genere) {
            case Genere::Testo:
                ImpostaTestoDi(Testo(c.indice), sValore);
                break;
            case Genere::Data:
                ImpostaTestoDi(Testo(c.indice), DataDaTesto(sValore));
                break;
            case Genere::AnnoInizio:
            case Genere::AnnoFine:
                ImpostaTestoDi(Testo(c.indice), AnnoDaData(sValore));
                break;
            case Genere::Profilo:
                cmbProfili->setCurrentIndex(CercaIndice(cmbProfili, sValore));
                break;
            case Genere::SoloLettura:
                break;
            }
        }
        const auto testo = [&riga, iChiave](int i) {
            return riga.value(iChiave + i).toString();
        };
        lbCodice->setText(testo(2) + QLatin1Char('-') + testo(3) + testo(4) + QLatin1Char('-') +
                          QLatin1String(tipo.sLettere) + QString::number(lChiave));
    }
    BloccaCampi();
}

void EditoreProduttore::Salva(long ID_Soggetto) {
    const Connessione& cnn = Cnn();
    const QVariant id = Id(ID_Soggetto);
    // Every value is made before anything is written: a box that cannot be stored leaves both
    // rows as they were.
    const QList<QVariant> valori = ValoriSalva(ID_Soggetto);
    const QString sPubblicato =
        chkPubblicato->isChecked() ? QStringLiteral("S") : QStringLiteral("N");
    const QVariant redattore = ColonnaTesto(NullSeVuoto(Casella(tipo.iRedattore)));

    // A row that another workstation removed meanwhile is not written again.
    cnn.Esegui(QStringLiteral("UPDATE Soggetti SET Pubblicato = ?, DataRedazione = ?, "
                              "Redattore = ? WHERE ID_Soggetto = ?"),
               {sPubblicato, ColonnaGiorno(DTPData), redattore, id});
    cnn.EseguiLista(SqlSalva(), valori);

    QSqlQuery riga = cnn.Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
                                    .arg(Colonna(tipo.sChiave), Colonna(tipo.sTabella)),
                                {id});
    const bool bTrovata = riga.next();
    LeggiStato(bTrovata, bTrovata ? Lungo(riga.value(0)) : 0, ID_Soggetto);
    BloccaCampi();
}

long EditoreProduttore::LeggiID() const {
    return lChiave;
}

void EditoreProduttore::Pulisci() {
    const QDate giorno = DTPData->date();
    const int iProfilo = cmbProfili != nullptr ? cmbProfili->currentIndex() : -1;
    EditoreRecord::Pulisci();
    DTPData->setDate(giorno);
    if (cmbProfili != nullptr)
        cmbProfili->setCurrentIndex(iProfilo);
    lbCodice->setText(CodiceVuoto);
}

void EditoreProduttore::CheckDenominazioni(long ID_Soggetto) {
    AltreDenominazioni = !NessunaRiga(
        QStringLiteral("SELECT * FROM %1 DEN JOIN %2 T ON T.%3 = DEN.%3 "
                       "WHERE T.ID_Soggetto = ?")
            .arg(Colonna(tipo.sDenominazioni), Colonna(tipo.sTabella), Colonna(tipo.sChiave)),
        {Id(ID_Soggetto)});
}

// --- For the kinds -------------------------------------------------------------------------

QString EditoreProduttore::Casella(int indice) const {
    return TestoDi(Testo(indice));
}

QComboBox* EditoreProduttore::Profili() const {
    return cmbProfili;
}

// --- Private -------------------------------------------------------------------------------

void EditoreProduttore::LeggiStato(bool bTrovata, long lChiaveRiga, long lIdSoggettoRiga) {
    if (!bTrovata) {
        lChiave = 0;
        OkNuovo = true;
        OkModifica = false;
        OkCancella = false;
        OkLinks = false;
        OkAltreDenominazioni = false;
        AltreDenominazioni = false;
        return;
    }
    lChiave = lChiaveRiga;
    OkNuovo = true;
    OkModifica = true;
    OkAltreDenominazioni = true;
    // Only the complessi count: links to inventory units keep nothing from being deleted.
    const bool bComplessi =
        !NessunaRiga(QStringLiteral("SELECT * FROM ComplessiDocSoggetti WHERE ID_Soggetto = ?"),
                     {Id(lIdSoggettoRiga)});
    OkCancella = !bComplessi;
    OkLinks = bComplessi;
    CheckDenominazioni(lIdSoggettoRiga);
}

QString EditoreProduttore::SqlMostra() const {
    QStringList colonne;
    for (const Campo& c : tipo.campi) {
        const QString sColonna = Colonna(c.sColonna);
        switch (c.genere) {
        case Genere::Data:
        case Genere::AnnoInizio:
        case Genere::AnnoFine:
            colonne << QStringLiteral("COALESCE(CAST(%1 AS VARCHAR(8)),'')").arg(sColonna);
            break;
        default:
            // A name never saved shows the placeholder, which the mandatory walk refuses.
            colonne << QStringLiteral("COALESCE(%1,'%2')")
                           .arg(sColonna, c.indice == 0 && c.genere == Genere::Testo
                                              ? InserireValore
                                              : QString());
            break;
        }
    }
    colonne << Colonna(tipo.sChiave) << QStringLiteral("ID_Soggetto")
            << QStringLiteral("COALESCE(ISAD_Nazione,'')")
            << QStringLiteral("COALESCE(ISAD_Codice,'')")
            << QStringLiteral("COALESCE(ISAD_Sigla,'')");
    return QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
        .arg(colonne.join(QStringLiteral(", ")), Colonna(tipo.sTabella));
}

QString EditoreProduttore::SqlSalva() const {
    QStringList colonne;
    for (const Campo& c : tipo.campi) {
        if (c.genere != Genere::SoloLettura)
            colonne << Colonna(c.sColonna) + QStringLiteral(" = ?");
    }
    return QStringLiteral("UPDATE %1 SET %2 WHERE ID_Soggetto = ?")
        .arg(Colonna(tipo.sTabella), colonne.join(QStringLiteral(", ")));
}

QList<QVariant> EditoreProduttore::ValoriSalva(long lIdSoggettoRiga) const {
    QList<QVariant> valori;
    for (const Campo& c : tipo.campi) {
        switch (c.genere) {
        case Genere::Testo:
            if (c.indice == 0) {
                // The name is never Null.
                valori << TestoNonNullo(TestoODefault(Casella(0)));
            } else {
                valori << ColonnaTesto(NullSeVuoto(Casella(c.indice)));
            }
            break;
        case Genere::Data:
            valori << ColonnaDataCompleta(Casella(c.indice));
            break;
        case Genere::AnnoInizio:
        case Genere::AnnoFine:
            valori << ColonnaIntera(DataDaAnno(Casella(c.indice), c.genere == Genere::AnnoInizio));
            break;
        case Genere::Profilo:
            valori << ColonnaTesto(CodiceDueCifre(cmbProfili));
            break;
        case Genere::SoloLettura:
            break;
        }
    }
    valori << Id(lIdSoggettoRiga);
    return valori;
}
