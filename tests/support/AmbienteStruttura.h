#pragma once

// What the tests of the structure windows share: a program folder of their own with the
// panel's pictures and the records' lookup lists, a fresh database with a code of institute
// and two provinces, the session on it and the scripted platform; the elements and links made
// behind the windows' backs; the reading of the tree, of the boxes and of the editors' boxes.

#include "AmbienteRecord.h"
#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QList>
#include <QModelIndex>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <initializer_list>
#include <memory>

class Connessione;
class FinestraStruttura;
class ModelloAlbero;
class PrimoMDI;
class QLineEdit;
class QWidget;

struct AmbienteStruttura {
    explicit AmbienteStruttura(TipoBackend tipo, bool bIstituto = true);
    ~AmbienteStruttura();
    AmbienteStruttura(const AmbienteStruttura&) = delete;
    AmbienteStruttura& operator=(const AmbienteStruttura&) = delete;

    // The code of institute "Archivio di Stato di Lucca" (10) and the provinces LU and FI.
    void Riferimenti() const;
    const Connessione& cnn() const;
    // An element of that kind under that parent (0: at the top).
    long Crea(const char* tipo, const QString& nome, long padre = 0) const;
    // A row of Links from a complesso to a finding aid.
    void Lega(long complesso, long inventario) const;
    // The first column of the first row (invalid when there is none).
    QVariant Valore(const QString& sql, std::initializer_list<QVariant> valori) const;
    int Righe(const char* tabella) const;
    // The lookup lists of the analytical inventory's editors (units, parchments, seals) in the
    // program folder.
    void ListeInventarioAnalitico();
    // The main form after a login on the test database (Param.txt, Connetti.txt and
    // Istituto.txt of an "I" site written), the boxes of the start forgotten; nullptr when the
    // session did not open.
    std::unique_ptr<PrimoMDI> AvviaPrincipale();

    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    BancaDatiProva banca;
};

// The texts of the sons of a node, in the tree's order.
QStringList TestiFigli(const ModelloAlbero& modello, const QModelIndex& padre);
// The tree below that node (all of it by default), one node a line, indented by depth:
// "text tag image".
QString Albero(const ModelloAlbero& modello, const QModelIndex& nodo = QModelIndex(),
               int iLivello = 0);

// An institute with a fondo and a finding aid linked to it; the key of its row of Inventari.
struct Strumento {
    long ist = 0;
    long fondo = 0;
    long inv = 0;
    long idInv = 0;
};
Strumento CreaStrumento(const AmbienteStruttura& a,
                        const QString& sNome = QStringLiteral("Carte Guinigi"));
// The boxes shown with that title.
QList<Messaggio> MessaggiCon(const PiattaformaScriptata& piattaforma, const QString& sTitolo);
// The mandatory fields of an institute, with that name.
void CompilaIstituto(const QWidget* editore, const QString& nome);
// The mandatory fields of a finding aid, a digital one, with that title.
void CompilaInventario(const QWidget* editore, const QString& titolo);
// The mandatory fields of a complesso; false when the record lacks its fields.
bool CompilaComplesso(const QWidget* editore, const QString& nome, const QString& consistenza);

// A new institute made in the window with its New command, the editor filled, Conferma: the id
// of the node then chosen.
template <typename Finestra> qint64 NuovoIstitutoNellaFinestra(Finestra& f, const QString& nome) {
    f.cmdNuovoIst->click();
    CompilaIstituto(f.fraIstituto, nome);
    f.cmdConferma->click();
    return f.Modello().Id(f.tvwDB->currentIndex());
}

// The end of a road from the menu: Escape closes the window and clears its open flag, the
// menu entry opens it again, and its close box closes it and clears the flag.
void ChiusuraERiaperturaDalMenu(PrimoMDI& principale, FinestraStruttura* finestra,
                                const char* sMenu, const bool& bAperta);
