#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace zuvora::installa {

// A table of start rows: UTF-8, comma-separated, the first line names the columns. A field is Null when nothing stands
// in it, and the empty text when it is "".
struct Csv {
    QStringList colonne;
    QList<QStringList> righe; // each as long as `colonne`; a Null field is a null QString
};

// Throws Guasto naming `nome` and the line when a row has too many or too few fields or a quote is left open.
Csv leggiCsv(const QByteArray &testo, const QString &nome);

} // namespace zuvora::installa
