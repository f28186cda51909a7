#pragma once

#include "installer/Contenuto.h"
#include "installer/importa/Flusso.h"

#include "shell/store/Database.h"

#include <QHash>
#include <QSet>

namespace zuvora::installa {

// What came over, in words and numbers.
struct Resoconto {
    struct Voce {
        QString tabella;
        qsizetype righe = 0;
    };
    QList<Voce> tabelle;
    QStringList note;
};

// Puts the tables of an old database into a new one of our schema as they come. Columns and tables that the schema
// doesn't know are added; everything is one transaction.
class Travaso {
public:
    // `file` must not exist. Throws EngineError.
    Travaso(const Archivio &archivio, const QString &file);

    void tabella(const TabellaAccess &tabella);
    void riga(const QStringList &valori);
    // Makes what the old database lacks as the schema says, and ends the writing.
    void concludi(const QString &cartella);

    bool haTrovatoTabelle() const { return m_nostre > 0; }
    bool aveva(const QString &tabella, const QString &colonna) const; // the old database, in any case
    Database &database() { return m_db; }
    Resoconto resoconto; // grows on the way

private:
    void allinea(const TabellaAccess &tabella);
    void creaTabella(const TabellaAccess &tabella);
    void scrivi();

    const Archivio &m_archivio;
    Database m_db;
    QHash<QString, QSet<QString>> m_viste; // tables and their columns, folded
    int m_nostre = 0;
    QString m_inserisci;
    QString m_inserisciSenzaChiave;
    qsizetype m_chiave = -1; // which value is the row's number
    QList<bool> m_logica;    // the new column is a boolean
    QList<QStringList> m_attesa;
};

} // namespace zuvora::installa
