#pragma once

// What the tests of the link viewers share: the environment of a record (the two files of roles
// and the lists of the parchment, the seal and the unit in the program folder) with the rows of
// links made behind the viewers' backs, and the reading of a viewer's lists, buttons and boxes by
// objectName.

#include "AmbienteRecord.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>

class DialogoPuntoAccesso;
class QAbstractButton;
class QDialog;
class QPushButton;
class QTreeWidget;

// The objects served: a parchment, a unit and a seal under one finding aid, by their elements and
// their keys in their own tables.
struct Oggetti {
    long pergamena = 0, idPergamena = 0;
    long unita = 0, idUnita = 0;
    long sigillo = 0, idSigillo = 0;
};

struct AmbienteLink : AmbienteRecord {
    explicit AmbienteLink(TipoBackend tipo, const QStringList& script = {});

    // A parchment, a unit and a seal made under a new finding aid of a new institute.
    Oggetti NuoviOggetti() const;
    // The key of an element's row in its detail table.
    long Dettaglio(const char* tabella, const char* chiave, long idElemento) const;
    // A row with its own key in a table of the access points or of producers.
    long Antroponimo(const QString& nome) const;
    long Toponimo(const QString& denominazione) const;
    long Titolare(const QString& nome) const;
    long Soggetto(const QString& nome, const char* tipo) const;
    // The rows of links: a person of a parchment (its key in Pergamene) with a role (Null when
    // the role is invalid), a person of a unit, a place of a parchment or a unit, a holder of a
    // seal, a producer of a complesso or a unit (their keys), a row of Links.
    long PersonaDiPergamena(long idPergamena, long idAntroponimo, const QVariant& ruolo) const;
    long PersonaDiUnita(long idDato, long idAntroponimo) const;
    void LuogoDi(const char* tabella, const char* chiave, long id, long idToponimo) const;
    long TitolareDiSigillo(long idSigillo, long idTitolare, const QVariant& ruolo) const;
    void ProduttoreDi(const char* tabella, const char* chiave, long id, long idSoggetto) const;
    void Lega(long idElemento, long idElementoLink) const;
    qint64 Conta(const QString& sql, std::initializer_list<QVariant> valori) const;
};

// A viewer by name as its opener makes it, not yet shown.
QDialog* Visualizzatore(const QString& sNome, const QVariantMap& argomenti = {});

// The list of a viewer ("lvwDB", or "lvwDB(n)" of a viewer with tabs).
QTreeWidget* Lista(const QWidget* visualizzatore, const QString& sNome = QStringLiteral("lvwDB"));
// The texts of a list's column, in order, and the numbers at the head of the items' keys.
QStringList Testi(const QTreeWidget* lista, int colonna = 0);
QList<qint64> Chiavi(const QTreeWidget* lista);
QPushButton* Bottone(const QWidget* visualizzatore, const char* nome);
// In the viewer, the first item of the first list that has any chosen (its tab brought up) and
// deleted, the question answered Yes: its key, 0 when every list was empty.
qint64 CancellaLaPrimaVoce(PiattaformaScriptata& seam, QWidget* visualizzatore);
// A record's link button lit: it has links (the window's colour, not the button face).
bool PulsanteAcceso(const QAbstractButton* pulsante);

// What one road from a record through its viewer, an access point's dialog and a fresh viewer saw.
struct StradaPuntoAccesso {
    bool bDialogo = false;
    QStringList voci;          // the dialog's list
    QString etichetta;         // the dialog's label of the object
    bool bFromSigilli = false; // the holders' dialog reached from the seal
    bool bBloccati = false;    // the names chosen change only through the ticks
    QStringList dopo;          // the fresh viewer's list after the tie
};
// From the record's viewer up: Nuovo collegamento; in the dialog, prima (when given), then the
// user's tick on the entry named and Collega; in the fresh viewer the role, when given, typed and
// confirmed on the entry's item, the tie deleted when bScioglie (the question answered as the
// test scripted it), and the viewer closed.
void PercorriPuntoAccesso(const QString& sVisualizzatore, const QString& sDialogo,
                          const QString& sVoce, const QString& sRuolo, StradaPuntoAccesso& strada,
                          bool bScioglie = false,
                          std::function<void(DialogoPuntoAccesso&)> prima = {});
