#pragma once

// What the tests of the records share: a program folder of their own with the record's lookup
// lists, a fresh database (with more scripts of db/ if given) as the session's connection and
// the scripted platform; the columns of the record's table and of Elementi read and written
// behind the record's back, the elements, institutes and links made there; the record's boxes
// by name, the host that reads its flags and the window made active.

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "HostEditore.h"
#include "PiattaformaScriptata.h"

#include <QList>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <QVariantMap>
#include <QtTest>
#include <functional>
#include <initializer_list>

class Connessione;
class EditoreRecord;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;
class ucPergamena;
class ucSigillo;

struct AmbienteRecord {
    // sTabella is the record's table; the lists are copied from site/ into the program folder.
    AmbienteRecord(TipoBackend tipo, QString sTabella, std::initializer_list<const char*> liste,
                   const QStringList& script = {});
    ~AmbienteRecord();
    AmbienteRecord(const AmbienteRecord&) = delete;
    AmbienteRecord& operator=(const AmbienteRecord&) = delete;

    const Connessione& Cnn() const;
    // The first column of the first row (invalid when there is none).
    QVariant Valore(const QString& sql, std::initializer_list<QVariant> valori) const;
    // A column of an element's row in a table, in the record's table, in Elementi.
    QVariant ColonnaDi(const QString& tabella, const QString& colonna, long idElemento) const;
    QVariant Colonna(const QString& colonna, long idElemento) const;
    QVariant ColonnaElemento(const QString& colonna, long idElemento) const;
    bool Nullo(const QString& colonna, long idElemento) const;
    // The seat and the warehouse (ID_IstitutoSede, ID_IstitutoMag) of an element's row in a
    // table, or in the record's table, and both written at once.
    QVariant Sede(const QString& tabella, long idElemento) const;
    QVariant Magazzino(const QString& tabella, long idElemento) const;
    QVariant Sede(long idElemento) const;
    QVariant Magazzino(long idElemento) const;
    void ScriviLuoghi(const QString& tabella, long idElemento, const QVariant& sede,
                      const QVariant& magazzino) const;
    void ScriviLuoghi(long idElemento, const QVariant& sede, const QVariant& magazzino) const;
    // "UPDATE <the record's table> SET <colonne> WHERE ID_Elemento = ?", the element's id last.
    void Scrivi(const QString& colonne, std::initializer_list<QVariant> valori) const;
    // An element of that kind under that parent (0: at the top).
    long Crea(const char* tipo, const QString& nome, long padre = 0) const;
    // An element of that kind under a new institute named "Istituto", and that institute.
    struct ElementoInIstituto {
        long istituto;
        long id;
    };
    ElementoInIstituto CreaInIstituto(const char* tipo, const QString& nome) const;
    // An institute or a place of one (IstitutiProva), and the key of its row of Istituti.
    long CreaIstituto(const QString& nome, const QString& tipologia, long padre = 0) const;
    long IdIstituto(long idElemento) const;
    // A row of Links from a complesso to a finding aid.
    void Collega(long complesso, long inventario) const;
    // Every column of the row of a table whose key column has that value, by the column's name
    // in lower case (the backends spell the names differently).
    QVariantMap RigaIntera(const QString& tabella, const QString& chiave, long valore) const;
    // A trigger of the test's own: the database refuses an update of the table whose new row
    // meets the condition (on NEW), with that message.
    void RifiutaAggiornamento(const QString& tabella, const QString& sCondizione,
                              const QString& sMessaggio) const;

    const QString sTabella;
    CartellaProva cartella;
    BancaDatiProva banca;
    PiattaformaScriptata seam;
};

// The records of parchments and seals: a program folder with the list of the traditio and the
// seven lists of the seal, sTabella the record's table ("Pergamene" or "Sigilli").
struct AmbientePergamene : AmbienteRecord {
    AmbientePergamene(TipoBackend tipo, QString sTabella);
    // A column of a table of the parchment found by its key, and that key of an element.
    QVariant ColonnaPG(const QString& tabella, const QString& colonna, long idPergamena) const;
    long IdPergamena(long idElemento) const;
    // A column of the row of SGTipo of a seal's element, and the key of the seal.
    QVariant Tipo(const QString& colonna, long idElemento) const;
    long IdSigillo(long idElemento) const;
    // An institute, a finding aid under it and a parchment under the finding aid.
    struct Albero {
        long istituto, inventario, pergamena;
    };
    Albero CreaPergamena(const QString& sSegnatura = QStringLiteral("Perg. 1")) const;
    // A parchment in its tree, with the key of its row in Pergamene.
    struct PergamenaCreata {
        Albero albero;
        long id;
        long idPG;
    };
    PergamenaCreata CreaPergamenaConRiga() const;
};

// The mandatory fields of a parchment and of a seal filled in.
void Compila(ucPergamena& editore);
void Compila(ucSigillo& editore);

// A MAG document of one image in a folder of its own, and the repository's root (sParam01) and
// address (sParam12) of the session.
struct DocumentoMag {
    DocumentoMag();
    static void Scrivi(const QString& percorso, const QByteArray& contenuto);
    QTemporaryDir cartella;
    QString sDoc;
};

// An institute at the top with a seat ("03") and a warehouse ("04"), made in that order, and the
// keys of their rows of Istituti.
struct Luoghi {
    explicit Luoghi(const AmbienteRecord& ambiente);
    long istituto, sede, magazzino;
    long idIstituto, idSede, idMagazzino;
};

QVariant Id(long valore);
QVariant NullTesto();
// A Null key, of the kind of the columns of keys.
QVariant NullChiave();

// Text1(n) of an editor as a single line, as a block, and its text whichever it is.
QLineEdit* Riga(const QWidget* editore, int n);
QPlainTextEdit* Blocco(const QWidget* editore, int n);
QString Testo(const QWidget* editore, int n);
// Text1(n) of an editor given a text, whichever it is.
void ScriviTesto(const QWidget* editore, int n, const QString& testo);
QLabel* Etichetta(const QWidget* editore, int n);
QComboBox* Combo(const QWidget* editore, const char* nome);
QPushButton* Pulsante(const QWidget* editore, const char* nome);
// The enabled state of the buttons, one 0/1 a button in their order.
QString Accesi(const QList<const QPushButton*>& pulsanti);
// The entries of a combo as "code=text".
QStringList Voci(const QComboBox* cmb);
// A combo of a control array, nome(i).
QComboBox* Indice(const QWidget* editore, const char* nome, int i);
// The entry of a combo whose item data is that key made the current one.
void ScegliChiave(const QWidget* editore, const char* nome, long chiave);
// The piece repeated up to n characters.
QString Lungo(const QString& pezzo, int n);
// Shows the window and makes it the active one: the focus moves between the boxes.
bool Attiva(QWidget& finestra);
// Of those controls of an editor, the ones the chain of the focus meets from the first control,
// in the order met.
QStringList OrdineDelFuoco(const QWidget* primo, const QStringList& controlli);
// The objectName of the control the focus goes to after the one of that name (the inner parts
// of a box, as the line edit of an editable combo, belong to the box); empty at the end.
QString DopoNelFuoco(const QWidget* editore, const QString& sNome);

// A text typed in a box which is then left with a click on another box (altra): refused, one
// box more is shown (iAttesi counts them) with that text, titled "Attenzione", and the focus
// stays in the box; taken, no box more and the focus goes to the other box.
void RifiutatoAllUscita(const PiattaformaScriptata& seam, QLineEdit* casella, const QString& sTesto,
                        QLineEdit* altra, const QString& sMessaggio, int& iAttesi);
void AccettatoAllUscita(const PiattaformaScriptata& seam, QLineEdit* casella, const QString& sTesto,
                        QLineEdit* altra, int iAttesi);

// That element shown in the host and put in edit with Modifica.
void MostraInModifica(HostEditore& ospite, long id);
// The host made the active window, that element shown and put in edit with Modifica; false
// when the host did not become the active window (nothing shown then).
bool InModifica(HostEditore& ospite, long id);

// The host reads the flags of the record to set its buttons.
template <typename Editore>
void CollegaPermessi(HostEditore& ospite, Editore* editore, bool Editore::*okNuovo) {
    ospite.okNuovo = [editore, okNuovo] {
        return editore->*okNuovo;
    };
    ospite.okModifica = [editore] {
        return editore->OkModifica;
    };
    ospite.okCancella = [editore] {
        return editore->OkCancella;
    };
}

// A new editor in a host of its kind under a parent, the host's buttons following the editor's
// flags, loaded as a host loads (Init).
template <typename Editore> struct EditoreOspitato {
    EditoreOspitato(const char* tipo, long padre, bool Editore::*okNuovo)
        : editore(new Editore)
        , ospite(editore, QLatin1String(tipo), padre) {
        CollegaPermessi(ospite, editore, okNuovo);
        ospite.Carica();
    }
    Editore* const editore;
    HostEditore ospite;
};
// The host of parchments and the host of seals (a seal not attached to a unit) under a parent.
EditoreOspitato<ucPergamena> OspitePergamena(long padre);
EditoreOspitato<ucSigillo> OspiteSigillo(long padre);

// The seat chosen for a parent of that kind under an institute with places goes down to the
// parent's direct children as their seat and their warehouse, not to a grandchild nor to a
// sibling; "Sede" on the parent takes Null down. The editor is made ready here and put in edit
// on the parent; compila fills in its mandatory fields.
void LaSedeScendeAiFigliDiretti(const AmbienteRecord& ambiente, const char* tipo,
                                EditoreRecord& editore, const std::function<void()>& compila);

// An editor made ready by its Init and, when an element is given, showing it.
template <typename Editore> struct EditorePronto : Editore {
    explicit EditorePronto(long idElemento = 0) {
        this->Init();
        if (idElemento != 0)
            this->Mostra(idElemento);
    }
};

// An institute, a host under it of a new editor whose buttons follow the editor's flags and,
// when it is named, a record of the host's kind under the institute; compila fills in the
// editor's mandatory fields.
template <typename Editore> struct RecordOspitato {
    RecordOspitato(const AmbienteRecord& ambiente, const char* tipo, bool Editore::*okNuovo,
                   std::function<void(Editore&)> compilaObbligatori, const QString& sNome)
        : istituto(ambiente.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01")))
        , id(sNome.isEmpty() ? 0 : ambiente.Crea(tipo, sNome, istituto))
        , editore(new Editore)
        , ospite(editore, QLatin1String(tipo), istituto)
        , compila(std::move(compilaObbligatori)) {
        CollegaPermessi(ospite, editore, okNuovo);
        ospite.Carica();
    }
    // The host made the active window, the record shown and put in edit, with its mandatory
    // fields filled in when bCompila.
    bool Modifica(bool bCompila = true) {
        if (!InModifica(ospite, id))
            return false;
        if (bCompila)
            compila(*editore);
        return true;
    }
    const long istituto;
    const long id;
    Editore* const editore;
    HostEditore ospite;
    const std::function<void(Editore&)> compila;
};

// Through the host of a record with nothing in hand: Nuovo, then a Conferma of the empty form is
// refused with the first mandatory message and writes no element of that kind; filled in, the
// new record under the institute is written and shown. idNuovo is its id (0 when a step failed).
template <typename Editore>
void CreaAttraversoLOspite(const AmbienteRecord& ambiente, RecordOspitato<Editore>& record,
                           const char* tipo, const QString& sPrimoMessaggio, long& idNuovo) {
    idNuovo = 0;
    HostEditore& ospite = record.ospite;
    record.editore->AssegnaIstituto(ambiente.IdIstituto(record.istituto));
    ospite.cmdNuovo->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTesto, sPrimoMessaggio);
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = ?"),
                         {QLatin1String(tipo)})
                 .toInt(),
             0);
    record.compila(*record.editore);
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(record.editore->ID_Istituto, ambiente.IdIstituto(record.istituto));
    idNuovo = ospite.IdCorrente();
}

// Through the host, on the record shown: an edit of the title cancelled leaves sPrima in the form;
// confirmed, the new title is in the form, in the record's table and in Elementi.
void RinominaAttraversoLOspite(const AmbienteRecord& ambiente, HostEditore& ospite,
                               const QWidget* editore, long idElemento, const QString& sPrima,
                               const QString& sNuovo);
