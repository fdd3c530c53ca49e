#include "SediIstituto.h"

#include "EditoreRecord.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QComboBox>
#include <QSqlQuery>
#include <algorithm>

SediIstituto::SediIstituto(QComboBox* sede, QComboBox* magazzino)
    : cmbSede(sede)
    , cmbMagazzino(magazzino) {}

void SediIstituto::CaricaSedi(long lIdIstituto) {
    cmbSede->clear();
    cmbMagazzino->clear();
    // "Sede": the institute itself.
    cmbSede->addItem(QStringLiteral("Sede"), QVariant(qlonglong(0)));
    cmbMagazzino->addItem(QStringLiteral("Sede"), QVariant(qlonglong(0)));
    try {
        QSqlQuery righe = Sessione::cnn->Esegui(
            QStringLiteral("SELECT vi.IST_Tipologia, vi.IST_Denominazione, vi.IST_ID_Istituto "
                           "FROM v_istituti vi JOIN Istituti IST ON IST.ID_Elemento = "
                           "vi.ELEM_ID_ElementoPadre WHERE IST.ID_Istituto = ?"),
            {EditoreRecord::Id(lIdIstituto)});
        while (righe.next()) {
            const QString sTipologia = righe.value(0).toString();
            const QString sNome = righe.value(1).toString();
            const QVariant codice = QVariant(righe.value(2).toLongLong());
            if (sTipologia == QLatin1String("03")) {
                cmbSede->addItem(sNome, codice);
                cmbMagazzino->addItem(sNome, codice);
            } else if (sTipologia == QLatin1String("04")) {
                cmbMagazzino->addItem(sNome, codice);
            }
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T5"));
    }
}

int SediIstituto::CercaSede(long lId) const {
    return std::max(0, EditoreRecord::IndiceDelNumero(cmbSede, lId));
}

int SediIstituto::CercaMagazzino(long lId) const {
    return std::max(0, EditoreRecord::IndiceDelNumero(cmbMagazzino, lId));
}

QVariant SediIstituto::Luogo(const QComboBox* cmb) {
    const QVariant codice = NumeroONull(CodiceVoceScelta(cmb), QStringLiteral("0"));
    return ENull(codice) ? EditoreRecord::NullNumero() : QVariant(qlonglong(codice.toDouble()));
}

QVariant SediIstituto::Sede() const {
    return Luogo(cmbSede);
}

QVariant SediIstituto::Magazzino() const {
    return Luogo(cmbMagazzino);
}

void SediIstituto::PropagaSedi(const QString& sTabella, long lIdElemento, const QVariant& vSede) {
    // One statement for every direct child: the table's name is the program's own, never a
    // user's text.
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE %1 SET ID_IstitutoSede = ?, ID_IstitutoMag = ? WHERE ID_Elemento "
                       "IN (SELECT ID_Elemento FROM Elementi WHERE ID_ElementoPadre = ?)")
            .arg(sTabella),
        {vSede, vSede, EditoreRecord::Id(lIdElemento)});
}
