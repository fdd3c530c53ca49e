#pragma once

// The records of a data file, read on a thread of their own while the server takes the ones
// before: a record is its fields in the file's order. Blocks of records wait in a short queue,
// so memory stays flat whatever the file's size.
//
// The body in the layout the export writes (records of fields with id and null, text with the
// predefined entities and character references, UTF-8) is read by a scanner of its own, many
// times faster than a general XML reader; at the first thing it does not know the general
// reader (QXmlStreamReader) reads the file again from the start, passing over the records
// already given, and has the last word on every error.

#include <QString>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace Import {

// The module's failure: Errore with source "Import".
[[noreturn]] void Fallisci(const QString& sDescrizione);
// An attribute's number, blanks around allowed; anything else fails in words.
int Intero(QStringView s, const QString& sCosa);

struct CampoLetto {
    int iSlot = 0; // the field's id less one
    bool bNull = false;
    QString sTesto;
};

struct BloccoLetto {
    std::vector<CampoLetto> campi;
    std::vector<size_t> fineRecord; // where each record's fields end in campi
    QString sErrore;                // the file is refused here, after the records above
};

class LettoreDati {
public:
    // iSlot: ids from 1 to iSlot are in range. lInizioCorpo: the byte just after the root's
    // start tag, when the head of the file (plain ASCII, UTF-8, no DTD, the root not empty)
    // lets the scanner start there; -1 to read with the general reader alone.
    LettoreDati(const QString& sPercorso, qsizetype iSlot, qint64 lInizioCorpo);
    ~LettoreDati();
    LettoreDati(const LettoreDati&) = delete;
    LettoreDati& operator=(const LettoreDati&) = delete;

    // The next block, false when the file is over.
    bool Prossimo(BloccoLetto& blocco);

    // The records the scanner read (the general reader took the rest), once the file is over.
    qint64 RecordVeloci() const;

    // The head of a data file, read with the general reader: the root's code and version,
    // and where the scanner may start (-1: the general reader alone). Raises Errore for a
    // file missing or not well formed before its root.
    struct Testa {
        QString sCode;
        QString sVersione;
        qint64 lInizioCorpo = -1;
    };
    static Testa LeggiTesta(const QString& sPercorso);

private:
    bool Consegna(BloccoLetto& blocco);
    void Leggi();
    qint64 LeggiVeloce(BloccoLetto& blocco);
    void LeggiFile(BloccoLetto& blocco, qint64 lDaSaltare);

    const QString sPercorso;
    const qsizetype iSlot;
    const qint64 lInizioCorpo;
    qint64 lVeloci = 0;
    std::mutex mutex;
    std::condition_variable cambiato;
    std::deque<BloccoLetto> coda;
    bool bFinito = false;
    bool bFermato = false;
    std::thread thread;
};

} // namespace Import
