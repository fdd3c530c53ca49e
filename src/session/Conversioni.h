#pragma once

// Date forms and the small conversions between a control's text and a column's value.
//
// A date of the archival sense is stored as eight digits, year, month and day (seven for a
// year of three digits), in a number or text column; it is shown and typed as dd/mm/yyyy.
// Numbers and dates are read by Italian rules (day first; comma decimal, point thousands)
// whatever the machine's locale.
//
// Null is an invalid QVariant, a database Null, or one holding nullptr: see ENull().

#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QVariant>
#include <optional>

class QComboBox;

// True for a Null value: an invalid QVariant or one that holds nullptr.
bool ENull(const QVariant& valore);

// The platform's tests, reproduced by Italian rules.
std::optional<QDateTime> DataOraItaliana(const QString& testo); // date, optionally with a time
bool IsDate(const QString& testo);
bool IsNumeric(const QString& testo);
double CDbl(const QString& testo); // raises Errore 13 ("Tipo non corrispondente") if not numeric
double Val(const QString& testo);  // the leading number, read with a decimal point

// Date routines.
QString DataSql(const QString& data); // raises Errore 13 if the text is not a date
QString DataSql(const QDateTime& data);
// True when the text is already what DataSql gives for it: "yyyy-mm-dd hh:mm:ss", a real date
// and time, a year of four digits from 1000.
bool DataSqlCanonica(QStringView testo);
bool DataSqlCanonica(QByteArrayView testo); // the same text in Latin-1 or UTF-8
QString DataDaNumero(qint64 lData);
QString DataDaTesto(const QVariant& vData);
QVariant NumeroDaData(const QString& sData);
QString AnnoDaData(const QVariant& vData);
QVariant DataDaAnno(const QString& sAnno, bool bInizio);

// Value routines.
QVariant NullSeVuoto(const QVariant& vTesto, const QString& sVuoto = QString());
QString TestoODefault(const QString& sTesto, const QString& sDefault = QString());
QVariant NumeroONull(const QString& sTesto, const QString& sVuoto = QString());
QVariant NumeroOZero(const QString& sTesto, const QString& sVuoto = QString());
QString CodiceVoceScelta(const QComboBox* cmb);
QString TestoVoceScelta(const QComboBox* cmb);
QString CarattereVoceScelta(const QComboBox* cmb);
bool NumeroValido(const QString& sTesto);
QString CartellaDaPercorso(const QString& sPercorso);

// Trim and LTrim of the platform: they take away blanks only, not tabs or line ends.
QString Trim(const QString& s);
QString LTrim(const QString& s);

// Italian number text: comma decimal, point thousands, the given number of decimals.
QString NumeroItaliano(double valore, int decimali);
