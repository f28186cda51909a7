#pragma once

#include "installer/Crea.h"
#include "kit/Fratello.h"

#include <QMap>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// What the tests of the installer share.
namespace prova {

// A folder of its own, gone at the end, and an installation in it on demand.
class Banco : public testing::Test {
protected:
    QString percorso(const QString &nome = {}) const;
    // Makes an installation without the program in "impianto" and gives its folder.
    QString impianto(bool esempio = true);
    void scrivi(const QString &nome, const QByteArray &contenuto) const; // with the folders it needs

private:
    QTemporaryDir m_cartella{modello()};
    static QString modello(); // in memory where the system offers that: each installation waits for the disk
};

// An installation without the program, its pictures from beside the tool.
zuvora::installa::OpzioniCrea opzioni(const QString &cartella, bool esempio);
// Runs one statement on a database file, writing; gives the first value of the first row, or a null text.
QString sql(const QString &archivio, const QString &istruzione);
QByteArray leggi(const QString &file);
// Every file and folder below `cartella` with its content; a folder has none and ends with "/".
QMap<QString, QByteArray> istantanea(const QString &cartella);

} // namespace prova
