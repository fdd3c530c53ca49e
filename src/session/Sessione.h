#pragma once

// The session values: process-wide, one session per process, named as the program names them.
// A window that opens a dialog fills the values the dialog reads; the dialog leaves its outcome
// here. Nothing clears them afterwards, except Sessione::Azzera() (used by tests).

#include <QString>
#include <QVector>
#include <memory>

class Connessione;

namespace Sessione {

inline std::shared_ptr<Connessione> cnn; // the one connection of the session
inline QString sConnessione;             // head of the connection string, then the whole string
inline bool bIstituto = false;           // the site is of kind "I"
inline QString sServer;
inline QString sDatabase;
inline QString sUtente;
inline QString sPassword;
inline QString sVersioneApp;
inline double dValore = 0.0;

inline QString sParam01; // base folder of the images
inline QString sParam03; // parameter of the backup procedure
inline QString sParam04; // root folder offered for the export folder
inline QString sParam05; // root folder offered for the import folder
inline QString sParam07; // parameter of the web index procedure
inline QString sParam09; // base folder of the exported tables
inline QString sParam12; // value used by the MAG import

inline long lIdComplesso = 0;
inline QString sDenomComplesso;
inline long lIdInventario = 0;
inline QString sDenomInventario;
inline long lIdDatoInventariale = 0;
inline long lIdPergamena = 0;
inline long lIdSoggetto = 0;
inline QString sDenomSoggetto;
inline QString sTipoLink;
inline long lIdElementoLink = 0;
inline QString sDenomElementoLink;
inline long lIdAltreDen = 0;
inline QString sTipoAltreDen;
inline long lIdVersamento = 0;
inline long lIdRigaVersamento = 0;
inline long lModoStrutturaPG = 0;
inline QVector<long> aSelSoggetti;
inline QVector<long> aSelAntroponimi;
inline QVector<long> aSelToponimi;
inline QVector<long> aSelTitolari;
inline int iEsitoLinkSogg = 0;
inline int iEsitoLinkCD = 0;
inline int iEsitoLinkInv = 0;
inline bool bOkLinkSelInv = false; // frmSelInv tied a seal and a parchment
inline int iChiamanteInv = 0;
inline int iChiamanteAntroponimi = 0;
inline int iChiamanteToponimi = 0;
inline unsigned char iTipoSogg = 0;
inline long lIdElemLinkInv = 0;
inline QString sCartellaExport;
// The page link of an element to a MAG document of the image repository (frmCollegaImmagini):
// the element, the chosen document (below sParam01 when it lies there), the name of the first
// page chosen and the first and last page as sequence numbers (both 0: no link yet); the
// outcome is 1 when the dialog closed on Conferma, else 0.
inline long lIdElementoImg = 0;
inline QString sCartellaImg;
inline QString sPaginaImg;
inline qint16 iDaPagina = 0;
inline qint16 iAPagina = 0;
inline int iEsitoCollegaImmagini = 0;
inline QString sCartellaImport;

inline bool bFrmStrutturaCDAperto = false;
inline bool bFrmStrutturaINAperto = false;
inline bool bFrmSoggettiAperto = false;
inline bool bFrmRegistroPCAperto = false;
inline bool bFrmAntroponimiAperto = false;
inline bool bFrmToponimiAperto = false;
inline bool bFrmTitolariAperto = false;
inline bool bFrmECComplessiDocAperto = false;
inline bool bFrmECSoggettiAperto = false;

// The application's version: a constant of the program.
inline const QString VersioneApplicazione = QStringLiteral("3.2");
// The title of the boxes that name the program.
inline const QString TitoloProgramma = QStringLiteral("Tabellion Archivista");

// Every value back to its state at process start; the connection is closed.
void Azzera();

// Closes the session's connection, if there is one, and lets it go. It must run while Qt's SQL
// layer still lives: the end of the event loop, whatever its road, comes through here.
void ChiudiConnessione();

// Has ChiudiConnessione run also when the process ends through exit() without leaving its event
// loop (Qt ends it so when its display goes away). Called once the connection is open: the
// closing then comes before the C++ runtime takes down what Qt's SQL layer made for it.
void ChiudiConnessioneAllUscita();

// The program folder: TABELLION_CARTELLA if set, else the executable's own folder. Resolved
// once, at the first call after start or after Azzera().
QString CartellaProgramma();
// A file of the program folder.
QString FileProgramma(const QString& nome);

// Reads Param.txt of the program folder into the settings: a record is a two-digit code, one
// separator and the value from the fourth character; a later record of a code wins, codes 10,
// 11 and unknown ones are ignored, and reading stops at the first record of code 12. A missing
// or unreadable file raises Errore with the given source.
void LeggiParam(const QString& sSorgente);

// The kind of site that Istituto.txt of the program folder gives: the first character of its
// first record, "I" (an institute: it imports) or "S" (it exports), or whatever else stands
// there ("" for an empty file). A missing or unreadable file raises Errore with the given
// source.
QString LeggiTipoSito(const QString& sSorgente);

} // namespace Sessione
