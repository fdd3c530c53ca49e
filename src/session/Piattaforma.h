#pragma once

// The one seam through which the program speaks with the person and the desktop: message
// boxes, the choice of a file or a folder, the popup menu choice, opening a help book,
// starting a detached process, ending the process. PiattaformaQt is the real one; tests put in
// a scripted one that records every call and gives programmed answers.

#include <QPoint>
#include <QString>
#include <QStringList>

class QWidget;

enum class Icona { Nessuna, Critica, Domanda, Esclamazione, Informazione };
enum class Pulsanti { Ok, OkAnnulla, SiNo, SiNoAnnulla, RiprovaAnnulla };
enum class Risposta { Nessuna, Ok, Annulla, Si, No, Riprova };

struct Messaggio {
    QString sTitolo;
    QString sTesto;
    Icona icona = Icona::Nessuna;
    Pulsanti pulsanti = Pulsanti::Ok;
    Risposta predefinita = Risposta::Nessuna; // Nessuna: the first button
};

// What a program run to its end left: whether it started, its exit code (-1 when it crashed),
// what it wrote on its output and on its error stream.
struct EsitoProcesso {
    bool bAvviato = false;
    int iCodice = -1;
    QString sUscita;
    QString sErrori;
    QString sErroreAvvio; // why it did not start, or did not end
};

struct SceltaFile {
    QString sTitolo;
    QString sCartella;     // where the choice starts
    QString sFiltro;       // e.g. "Tutti (*.*);;Documenti MAG (*.xml)"
    QString sFiltroScelto; // the one of sFiltro in force when the choice opens; "" the first
    bool bSalva = false;
};

class Piattaforma {
public:
    virtual ~Piattaforma() = default;

    virtual Risposta MostraMessaggio(const Messaggio& messaggio) = 0;
    // The chosen file, or "" when the person gives up.
    virtual QString ScegliFile(const SceltaFile& scelta) = 0;
    // The chosen folder, or "" when the person gives up.
    virtual QString ScegliCartella(const QString& sTitolo, const QString& sCartella) = 0;
    // The number of the chosen entry (1 for the first), 0 for none.
    virtual int SceltaMenu(const QStringList& voci, const QPoint& posizione) = 0;
    // Shows a help book (a PDF) with the desktop's program for it; failures are not reported.
    virtual void ApriGuida(const QString& sPercorso) = 0;
    // Starts a program and returns at once, without waiting or looking at its outcome; the
    // process number, or 0 if it did not start.
    virtual qint64 AvviaProcesso(const QString& sProgramma, const QStringList& argomenti) = 0;
    // Runs a program to its end, the person waiting (a wait cursor), and gives back its outcome.
    virtual EsitoProcesso EseguiProcesso(const QString& sProgramma, const QStringList& argomenti);
    // Ends the program.
    virtual void TerminaProcesso() = 0;
};

// The seam in force; PiattaformaQt until another one is installed.
Piattaforma& piattaforma();
// Installs another seam (not owned); nullptr puts the real one back.
void ImpostaPiattaforma(Piattaforma* altra);

// A message box. An empty title gives the program's own title.
Risposta MsgBox(const QString& sTesto, Pulsanti pulsanti = Pulsanti::Ok,
                Icona icona = Icona::Nessuna, const QString& sTitolo = QString(),
                Risposta predefinita = Risposta::Nessuna);

class PiattaformaQt : public Piattaforma {
public:
    Risposta MostraMessaggio(const Messaggio& messaggio) override;
    QString ScegliFile(const SceltaFile& scelta) override;
    QString ScegliCartella(const QString& sTitolo, const QString& sCartella) override;
    int SceltaMenu(const QStringList& voci, const QPoint& posizione) override;
    void ApriGuida(const QString& sPercorso) override;
    qint64 AvviaProcesso(const QString& sProgramma, const QStringList& argomenti) override;
    void TerminaProcesso() override;
};
