#pragma once

// A window that hosts one record editor the way the structure windows do: the buttons
// cmdNuovo, cmdModifica, cmdConferma, cmdAnnulla, cmdCancella and the calling order of a host
// (Init at load; Mostra of a chosen element; Nuovo; Modifica; the mandatory check, the insert
// of the row of Elementi and Salva at confirmation, a failure of Salva shown in a critical box;
// Annulla; the delete of the detail row). When a dialog that the editor opened has closed
// (EventoStato), cmdCancella follows the editor's OkCancella again.

#include <QString>
#include <QWidget>
#include <functional>

class EditoreRecord;
class QPushButton;

class HostEditore : public QWidget {
    Q_OBJECT
public:
    // The editor is taken over; sTipologia is the kind of its elements, lIdPadre the parent
    // under which a new element is created (0: at the top of the tree).
    HostEditore(EditoreRecord* editore, QString sTipologia, long lIdPadre = 0,
                QWidget* parent = nullptr);

    // The editor's flags, read after every Mostra and Salva to set the buttons.
    std::function<bool()> okNuovo;
    std::function<bool()> okModifica;
    std::function<bool()> okCancella;

    EditoreRecord* Editore() const { return pEditore; }
    // "mostra", "nuovo", "modifica", or "" before anything is shown.
    QString Stato() const { return sStato; }
    // The element in hand (0 while a new one is being written).
    long IdCorrente() const { return lIdCorrente; }
    void ImpostaPadre(long lIdPadre) { lIdPadreNuovo = lIdPadre; }

    // The host's steps, also behind its buttons.
    void Carica();
    void MostraElemento(long lIdElemento);
    void Nuovo();
    void Modifica();
    // False when the mandatory check stopped the confirmation.
    bool Conferma();
    void Annulla();
    // True when the element was deleted.
    bool Cancella();

    QPushButton* cmdNuovo = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdConferma = nullptr;
    QPushButton* cmdAnnulla = nullptr;
    QPushButton* cmdCancella = nullptr;

private:
    void ImpostaPulsanti();

    EditoreRecord* pEditore;
    QString sTipologia;
    long lIdPadreNuovo;
    QString sStato;
    long lIdCorrente = 0;
    long lIdPrecedente = 0;
};
