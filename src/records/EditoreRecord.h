#pragma once

// What every record editor shares: the public operations in their fixed order, the lookup
// lists, the codes between combo and column, the mandatory-field walk, locking and
// unlocking, clearing, the colours of the child-list buttons, the publishing rule and the
// format of the money values.
//
// The controls of an editor are registered in the order of the design with Registra: that
// order is the order of the mandatory walk. A control's mandatory message lies in its dynamic
// property "Tag" ("" or none: not mandatory). Text boxes are QLineEdit (single line) and
// QPlainTextEdit (multi-line); list combos and data combos are QComboBox (a data combo has the
// dynamic property "ComboDati" true); check boxes QCheckBox; date pickers QDateEdit.

#include <QDate>
#include <QList>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <initializer_list>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

class EditoreRecord : public QWidget {
    Q_OBJECT
public:
    explicit EditoreRecord(QWidget* parent = nullptr);
    ~EditoreRecord() override;

    // The protocol, in the order of its slots.
    virtual QList<QWidget*> Controls() const;
    virtual void Init();
    virtual void Nuovo();
    virtual void Mostra(long IDElem);
    virtual void Modifica();
    virtual bool CheckMandatoryFields();
    virtual void Salva(long IDElem);
    virtual void Annulla();

    // The text of the denomination, Text1(0), read by the host before the row exists.
    virtual QString LeggiDenominazione() const;

    // Salva as a host runs it, once the row of Elementi is there: a failure is shown in a
    // critical box (the error's source, a line break and its description) and goes no further;
    // the editor is then locked as after a save. False when the save failed.
    bool SalvaMostrandoLErrore(long IDElem);

    // Whether the record in hand may be edited and deleted; read by the host after every
    // Mostra and Salva.
    bool OkModifica = false;
    bool OkCancella = false;

    // The message of the mandatory walk for a field left as the placeholder.
    static const QString InserireValore; // "<<Inserire valore>>"

    // --- Lookup lists --------------------------------------------------------------------
    // Appends the records of a lookup file of the program folder ("TipologiaIST.txt") to the
    // combo: the code (the number in the first two characters) in the item data, the text
    // from the third character. A missing file raises Errore, which no handler takes.
    static void CaricaLista(QComboBox* cmb, const QString& sFile);
    // The same for the lists with a one-character code (TipoInventario.txt): the character's
    // code in the item data, the text from the second character.
    static void CaricaListaUnCarattere(QComboBox* cmb, const QString& sFile);
    // The same for a file of records in pairs, the code and then its text, as a line
    // "01,Comune" gives them to the list-reading input: the number of the code's first two
    // characters in the item data, the next record as the text.
    static void CaricaListaCoppie(QComboBox* cmb, const QString& sFile);
    // CaricaLista with an empty entry first, whose item data is 0.
    static void CaricaListaConVoceVuota(QComboBox* cmb, const QString& sFile);
    // CaricaLista leaving out the records of that code.
    static void CaricaListaSenza(QComboBox* cmb, const QString& sFile, const QString& sCodice);
    // The walk of the Cerca... operations: the first entry whose item data equals the number
    // of the code; its text ("" if none) or its index (-1 if none).
    static QString CercaTesto(const QComboBox* cmb, const QString& sCodice);
    static int CercaIndice(const QComboBox* cmb, const QString& sCodice);
    // The index of the first entry whose item data is that number, -1 if none.
    static int IndiceDelNumero(const QComboBox* cmb, qlonglong numero);
    // The combo's text assigned: the first entry with that text, or none for "" or a text
    // that is not in the list.
    static void ImpostaTesto(QComboBox* cmb, const QString& sTesto);
    // The code of the chosen entry as the column holds it: two digits, Null if none chosen.
    static QVariant CodiceDueCifre(const QComboBox* cmb);
    // The bound text of a data combo: the item data of the chosen entry, "" if none.
    static QString TestoLegato(const QComboBox* cmb);

    // --- Money values --------------------------------------------------------------------
    // The format "#,#.00;;#" by Italian rules: thousands points, comma and two decimals;
    // nothing for a negative value and nothing for zero.
    static QString FormatoValore(double valore);

    // --- Child-list buttons ----------------------------------------------------------------
    // The button of a child list: the window's colour if the list has rows, the button face if
    // not (a light button is a list with contents).
    static void ColoraPulsante(QAbstractButton* pulsante, bool bHaRighe);

    // --- Values of bound columns ----------------------------------------------------------
    // A key as a bound value.
    static QVariant Id(long valore);
    // Typed Nulls, so that every backend binds the column's kind.
    static QVariant NullTesto();
    static QVariant NullNumero();
    // A text value for a column: a typed Null where the text is Null.
    static QVariant ColonnaTesto(const QVariant& valore);
    // The text of box indice for its column: a typed Null where the box is empty.
    QVariant TestoInColonna(int indice) const;
    // A whole number read from a column, 0 for Null.
    static long Lungo(const QVariant& valore);
    // A whole number for a column from the text of a box: Null stays Null, a text that is not a
    // number raises, as the assignment to a numeric field does.
    static QVariant ColonnaIntera(const QVariant& valore);
    // A full date typed as dd/mm/yyyy for its number column (yyyymmdd): a typed Null when the
    // text is no date.
    static QVariant ColonnaDataCompleta(const QString& sTesto);
    // A text for a column that takes no Null: an empty text stays an empty text.
    static QVariant TestoNonNullo(const QString& sTesto);

    // --- Existence tests -------------------------------------------------------------------
    // True if the statement (values bound) gives no row.
    static bool NessunaRiga(const QString& sSql, std::initializer_list<QVariant> valori);
    // Figli of the row of Elementi (0 if the row is missing).
    static long FigliElemento(long lIdElemento);

Q_SIGNALS:
    // A dialog that the editor opened has closed: the host sets its buttons again from the
    // flags (cmdCancella from OkCancella).
    void EventoStato();

protected:
    // OkCancella read again for the element in hand: no children (False when none is in hand).
    // The records whose flag says only that run it when a dialog they opened has closed, so
    // that the host that hears EventoStato sets its delete from what the dialog left.
    void RileggiOkCancella(long lIdElemento);

    // Opens the dialog of that name modally through Dialoghi::Apri and, once it has closed,
    // runs dopo (the record's own re-reading) and raises EventoStato; false (and nothing run,
    // no event) when no dialog has that name.
    bool ApriDialogo(const QString& sNome, const QVariantMap& argomenti = {},
                     const std::function<void()>& dopo = {});

    enum class Uscita { RestituisceFuoco, Rifiuta };
    // Runs verifica with the box's text when the box loses the focus (not when only the window
    // loses the activation or a popup opens, nor when the box is disabled). A non-empty answer is
    // shown in a box titled "Attenzione" (information icon) and the focus goes back to the box;
    // with Uscita::Rifiuta the click that took the focus away is not delivered either.
    void ControllaAllUscita(QWidget* casella,
                            std::function<QString(const QString& sTesto)> verifica,
                            Uscita modo = Uscita::RestituisceFuoco);
    // The check of a box of a full date (dd/mm/yyyy) for ControllaAllUscita: "Data errata" when
    // the text, trimmed, is not empty and no date; "" otherwise.
    static QString DataErrata(const QString& sTesto);
    // The check of a year box: "Anno errato" when the text is not empty and is no number of at
    // least three digits; "" otherwise.
    static QString AnnoErrato(const QString& sTesto);
    // The check of a number box: "Numero errato" when the text is not empty and no number.
    static QString NumeroErrato(const QString& sTesto);
    // The width of a text box that shows that sample whole (a date, a number of so many digits).
    static int LarghezzaPer(const QLineEdit* casella, const QString& sCampione);

    // The controls in the order of the design.
    void Registra(QWidget* controllo);
    // A button that opens a child dialog: enabled while a record is shown, disabled while one
    // is edited.
    void RegistraPulsanteFiglio(QAbstractButton* pulsante);
    // A text box that the design keeps read-only even while editing.
    void RegistraSoloLettura(QWidget* controllo);

    // Controls made in code with their names and Tags.
    QLineEdit* NuovoTesto(int indice, int iMax, const QString& sTag = QString());
    QPlainTextEdit* NuovoTestoMultiRiga(int indice, int iMax, const QString& sTag = QString());
    QLabel* NuovaEtichetta(int indice, const QString& sTesto);
    QComboBox* NuovaCombo(const QString& sNome, const QString& sTag = QString(),
                          bool bDati = false);
    // An editable combo: its list only offers texts and the text itself is the value. No limit
    // while typing; leaving it with more than iMax characters shows sMessaggio as an
    // exclamation, the leave refused and the whole text kept, so that it can be shortened.
    QComboBox* NuovaComboModificabile(const QString& sNome, int iMax, const QString& sMessaggio,
                                      const QString& sTag = QString());
    QCheckBox* NuovaCasella(const QString& sNome, const QString& sTag = QString());
    QDateEdit* NuovaData(const QString& sNome, const QString& sTag = QString());

    // Text1(n) and Label1(n) by index (nullptr if the editor has none).
    QWidget* Testo(int indice) const;
    QLabel* Etichetta(int indice) const;
    // The text of a text box (single or multi-line) and its assignment.
    static QString TestoDi(const QWidget* controllo);
    static void ImpostaTestoDi(QWidget* controllo, const QString& sTesto);

    // Locks the controls, enables the child-dialog buttons.
    void BloccaCampi();
    // Unlocks the controls, disables the child-dialog buttons and the read-only boxes, gives
    // the focus to Text1(0).
    void SbloccaCampi();
    // Text boxes "", check boxes off, combos without a choice, date pickers today.
    void Pulisci();

    // Step 1 of Salva: the row of Elementi gets Pubblicato "S" or "N" from the check box
    // and, where the record has them, DataRedazione and Redattore. Nothing if the row is
    // missing.
    static void SalvaElemento(long lIdElemento, const QCheckBox* chkPubblica,
                              const QDateEdit* dtpRedazione = nullptr,
                              const QWidget* txtRedattore = nullptr);

    // The publishing rule, for the click handler of a chkPubblica... box: when it has just
    // been ticked and the parent's Pubblicato is "N", the message titled "Attenzione" and the
    // box unticked. A database error gives the box titled with the handler's code.
    static void ControllaPubblicazione(QCheckBox* chkPubblica, long lIdPadre,
                                       const QString& sMessaggio, const QString& sCodiceErrore);

    // A real date column (DataRedazione) as the date picker shows it: today when Null; and the
    // picker's day as the column takes it.
    static QDate GiornoDi(const QVariant& valore);
    static QVariant ColonnaGiorno(const QDateEdit* dtp);

    // Mostra's reading of the row of Elementi: the parent's id (0 if Null) and whether it is
    // published; false if the row is missing.
    static bool LeggiElemento(long lIdElemento, long& lIdPadre, bool& bPubblicato);
    // Mostra's reading of the row of Elementi for a record that shows the date and the author
    // of its description: the box ticked when published, the date (today when Null) and the
    // author set, the MAG document's digest put in sMd5Link when given; the parent's id comes
    // back (0 if Null). Nothing is touched and 0 comes back when the row is missing.
    static long MostraElemento(long lIdElemento, QCheckBox* chkPubblica, QDateEdit* dtpRedazione,
                               QWidget* txtRedattore, QString* sMd5Link = nullptr);

private:
    QList<QWidget*> controlli;
    QList<QAbstractButton*> pulsantiFigli;
    QList<QWidget*> soloLettura;
};
