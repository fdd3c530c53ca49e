#pragma once

// What a site must be to exchange tables. Every row of a table that travels carries the code of
// its home site (Config.Code), and an import replaces all the rows of the sender's code: so a
// site exchanges only once it has a code of its own, never the placeholder of a new database;
// an import never takes a file of the receiver's own code, nor one of the placeholder; and an
// export sends the site's own rows only, under its code, so that a row received from another
// site never comes back relabelled.

#include <QByteArrayView>
#include <QString>

class Connessione;

namespace Scambio {

// The words for a site whose Config still holds the placeholder code (or an empty one, or no
// row at all): the site may not exchange, and how its identity is given.
QString MessaggioSenzaIdentita(const QString& sCodice);

// Raises Errore (source sSorgente) with those words when the site has no identity yet; with the
// server's words when Config cannot be read.
void ControllaIdentita(const Connessione& cnn, const QString& sSorgente);

// The words that refuse the data file at sPercorso, whose code is sCodice: the receiving
// site's own, or the placeholder of a site without identity.
QString FileDelSitoStesso(const QString& sPercorso, const QString& sCodice);
QString FileDiSitoSenzaIdentita(const QString& sPercorso, const QString& sCodice);

// The rows that an export of the site of code sCodiceSito sends: those of its code, and those
// made here before the site had one (no code, or the placeholder). A row of any other code came
// from another site and stays out.
class RigheDelSito {
public:
    explicit RigheDelSito(const QString& sCodiceSito);
    bool Propria(bool bNull, QByteArrayView codiceUtf8) const;
    bool Propria(bool bNull, const QString& sCodice) const;

private:
    QString sCodice;
    QByteArray codiceUtf8;
};

} // namespace Scambio
