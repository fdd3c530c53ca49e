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

#include <QString>
#include <QStringList>
#include <QVariant>
#include <initializer_list>

class Connessione;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

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
    // "UPDATE <the record's table> SET <colonne> WHERE ID_Elemento = ?", the element's id last.
    void Scrivi(const QString& colonne, std::initializer_list<QVariant> valori) const;
    // An element of that kind under that parent (0: at the top).
    long Crea(const char* tipo, const QString& nome, long padre = 0) const;
    // An institute or a place of one (IstitutiProva), and the key of its row of Istituti.
    long CreaIstituto(const QString& nome, const QString& tipologia, long padre = 0) const;
    long IdIstituto(long idElemento) const;
    // A row of Links from a complesso to a finding aid.
    void Collega(long complesso, long inventario) const;

    const QString sTabella;
    CartellaProva cartella;
    BancaDatiProva banca;
    PiattaformaScriptata seam;
};

QVariant Id(long valore);
QVariant NullTesto();

// Text1(n) of an editor as a single line, as a block, and its text whichever it is.
QLineEdit* Riga(const QWidget* editore, int n);
QPlainTextEdit* Blocco(const QWidget* editore, int n);
QString Testo(const QWidget* editore, int n);
QLabel* Etichetta(const QWidget* editore, int n);
QComboBox* Combo(const QWidget* editore, const char* nome);
QPushButton* Pulsante(const QWidget* editore, const char* nome);
// The piece repeated up to n characters.
QString Lungo(const QString& pezzo, int n);
// Shows the window and makes it the active one: the focus moves between the boxes.
bool Attiva(QWidget& finestra);

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
