#pragma once

#include "kit/FintaPiattaforma.h"
#include "kit/FintiDialoghi.h"
#include "shell/host/Ambiente.h"

#include <QByteArray>
#include <QTemporaryDir>
#include <QVariant>

namespace zuvora {

// A fresh copy of an installation (databases, kiosk folder, pictures; not the programs), with fake dialogs and platform
// and the environment that forms are given.
class InstallazioneProva {
public:
    InstallazioneProva();

    QString cartella() const { return m_cartella.path(); }
    QString archivio() const { return m_cartella.filePath(QStringLiteral("Zuvora.mdb")); }
    QString file(const QString &nome) const { return m_cartella.filePath(nome); }
    // Runs SQL on the settings database behind the program's back.
    void esegui(const QString &sql) const;
    // First column of the first row; invalid for Null or no row.
    QVariant valore(const QString &sql) const;
    // All rows and columns of a query as text, for comparing tables.
    QStringList righe(const QString &sql) const;
    QByteArray contenuto() const; // bytes of the settings database

    FintiDialoghi dialoghi;
    FintaPiattaforma piattaforma;
    ValoriCondivisi valori;
    Ambiente ambiente{valori, dialoghi, piattaforma};

private:
    QTemporaryDir m_cartella;
};

// QApplication with the program's look, made on first use by any test.
void preparaApplicazione();

} // namespace zuvora
