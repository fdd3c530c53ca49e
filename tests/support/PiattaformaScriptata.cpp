#include "PiattaformaScriptata.h"

PiattaformaScriptata::PiattaformaScriptata() {
    ImpostaPiattaforma(this);
}

PiattaformaScriptata::~PiattaformaScriptata() {
    ImpostaPiattaforma(nullptr);
}

Risposta PiattaformaScriptata::MostraMessaggio(const Messaggio& messaggio) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("messaggio");
    chiamata.messaggio = messaggio;
    chiamate.append(chiamata);
    if (alMessaggio) {
        alMessaggio(messaggio);
    }
    if (!risposte.isEmpty()) {
        return risposte.takeFirst();
    }
    if (messaggio.predefinita != Risposta::Nessuna) {
        return messaggio.predefinita;
    }
    switch (messaggio.pulsanti) {
    case Pulsanti::Ok:
    case Pulsanti::OkAnnulla:
        return Risposta::Ok;
    case Pulsanti::SiNo:
    case Pulsanti::SiNoAnnulla:
        return Risposta::Si;
    case Pulsanti::RiprovaAnnulla:
        return Risposta::Riprova;
    }
    return Risposta::Ok;
}

QString PiattaformaScriptata::ScegliFile(const SceltaFile& scelta) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("file");
    chiamata.sceltaFile = scelta;
    chiamate.append(chiamata);
    return fileScelti.isEmpty() ? QString() : fileScelti.takeFirst();
}

QString PiattaformaScriptata::ScegliCartella(const QString& sTitolo, const QString& sCartella) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("cartella");
    chiamata.messaggio.sTitolo = sTitolo;
    chiamata.sPercorso = sCartella;
    chiamate.append(chiamata);
    return cartelleScelte.isEmpty() ? QString() : cartelleScelte.takeFirst();
}

int PiattaformaScriptata::SceltaMenu(const QStringList& voci, const QPoint&) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("menu");
    chiamata.voci = voci;
    chiamate.append(chiamata);
    return scelteMenu.isEmpty() ? 0 : scelteMenu.takeFirst();
}

void PiattaformaScriptata::ApriGuida(const QString& sPercorso) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("guida");
    chiamata.sPercorso = sPercorso;
    chiamate.append(chiamata);
}

qint64 PiattaformaScriptata::AvviaProcesso(const QString& sProgramma,
                                           const QStringList& argomenti) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("processo");
    chiamata.sProgramma = sProgramma;
    chiamata.argomenti = argomenti;
    chiamate.append(chiamata);
    return pidProcesso;
}

EsitoProcesso PiattaformaScriptata::EseguiProcesso(const QString& sProgramma,
                                                   const QStringList& argomenti) {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("processo");
    chiamata.sProgramma = sProgramma;
    chiamata.argomenti = argomenti;
    chiamate.append(chiamata);
    return alProcesso ? alProcesso(sProgramma, argomenti) : esitoProcesso;
}

void PiattaformaScriptata::TerminaProcesso() {
    Chiamata chiamata;
    chiamata.sTipo = QStringLiteral("termina");
    chiamate.append(chiamata);
}

QList<Messaggio> PiattaformaScriptata::Messaggi() const {
    QList<Messaggio> messaggi;
    for (const Chiamata& chiamata : chiamate) {
        if (chiamata.sTipo == QStringLiteral("messaggio")) {
            messaggi.append(chiamata.messaggio);
        }
    }
    return messaggi;
}

QList<Chiamata> PiattaformaScriptata::Chiamate(const QString& sTipo) const {
    QList<Chiamata> scelte;
    for (const Chiamata& chiamata : chiamate) {
        if (chiamata.sTipo == sTipo) {
            scelte.append(chiamata);
        }
    }
    return scelte;
}

void PiattaformaScriptata::Svuota() {
    chiamate.clear();
}
