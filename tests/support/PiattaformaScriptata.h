#pragma once

// The seam for tests: records every box, choice and start, and gives programmed answers.
// Installed by its constructor, taken away by its destructor.

#include "session/Piattaforma.h"

#include <QList>
#include <QStringList>
#include <functional>

struct Chiamata {
    QString sTipo; // "messaggio", "file", "cartella", "menu", "guida", "processo", "termina"
    Messaggio messaggio;
    SceltaFile sceltaFile;
    QString sPercorso;
    QString sProgramma;
    QStringList argomenti;
    QStringList voci;
};

class PiattaformaScriptata : public Piattaforma {
public:
    PiattaformaScriptata();
    ~PiattaformaScriptata() override;

    Risposta MostraMessaggio(const Messaggio& messaggio) override;
    QString ScegliFile(const SceltaFile& scelta) override;
    QString ScegliCartella(const QString& sTitolo, const QString& sCartella) override;
    int SceltaMenu(const QStringList& voci, const QPoint& posizione) override;
    void ApriGuida(const QString& sPercorso) override;
    qint64 AvviaProcesso(const QString& sProgramma, const QStringList& argomenti) override;
    // Recorded as "processo" too; gives back esitoProcesso, or what alProcesso answers.
    EsitoProcesso EseguiProcesso(const QString& sProgramma, const QStringList& argomenti) override;
    void TerminaProcesso() override;

    // What was asked, in order.
    QList<Chiamata> chiamate;
    // Programmed answers, taken in order; when they run out a box answers with its default
    // button (the first one when none is named).
    QList<Risposta> risposte;
    QStringList fileScelti;
    QStringList cartelleScelte;
    QList<int> scelteMenu;
    qint64 pidProcesso = 4242;
    EsitoProcesso esitoProcesso{true, 0, QString(), QString(), QString()};
    // When set, a program run to its end is run by it (e.g. the real tool, found elsewhere).
    std::function<EsitoProcesso(const QString&, const QStringList&)> alProcesso;
    // Called while a box is "up", before it answers.
    std::function<void(const Messaggio&)> alMessaggio;

    QList<Messaggio> Messaggi() const;
    QList<Chiamata> Chiamate(const QString& sTipo) const;
    int Terminazioni() const {
        return static_cast<int>(Chiamate(QStringLiteral("termina")).size());
    }
    void Svuota();
};
