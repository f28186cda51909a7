#include "installer/copia/Svolta.h"

#include "installer/Guasto.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"
#include "shell/logic/TestoAnsi.h"

#include <QDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

Svolta::Svolta(const Elenco &elenco, const QString &nuova) {
    if (!elenco.totem.isEmpty() && !elenco.totem.startsWith(elenco.cartella + u'/'))
        aggiungi(elenco.totem, elenco.macchina, nuova + u'/' + cartellaTotemCopia);
    aggiungi(elenco.cartella, elenco.macchina, nuova);
}

void Svolta::aggiungi(const QString &vecchia, const QString &macchina, const QString &nuova) {
    const Percorsi percorsi;
    const QString unita = percorsi.conUnita(vecchia);
    m_coppie += {vecchia, nuova};
    m_coppie += {unita, percorsi.conUnita(nuova)};
    m_coppie += {u"\\\\"_s + macchina + unita.mid(unita.indexOf(u'\\')), percorsi.diRete(percorsi.conUnita(nuova))};
}

QString Svolta::voltato(const QString &percorso) const {
    for (const auto &[vecchia, nuova] : m_coppie) {
        const QString resto = percorso.mid(vecchia.size());
        if (percorso.startsWith(vecchia) && (resto.isEmpty() || resto[0] == u'/' || resto[0] == u'\\'))
            return nuova + resto;
    }
    return percorso;
}

void Svolta::volta(Database &db) const {
    const auto tabelle = db.leggiTesti(u"SELECT name FROM sqlite_master WHERE type = 'table' AND sql NOT NULL"_s);
    for (const QStringList &tabella : tabelle) {
        const auto colonne = db.leggiTesti(
            u"SELECT name FROM pragma_table_info('%1')"_s.arg(QString(tabella.first()).replace(u'\'', "''"_L1)));
        for (const QStringList &colonna : colonne) {
            QList<QStringList> cambi;
            const auto valori =
                db.leggiTesti(u"SELECT DISTINCT [%1] FROM [%2] WHERE typeof([%1]) = 'text' AND "
                              "(instr([%1], '/') OR instr([%1], '\\'))"_s.arg(colonna.first(), tabella.first()));
            for (const QStringList &valore : valori)
                if (const QString nuovo = voltato(valore.first()); nuovo != valore.first())
                    cambi += {nuovo, valore.first()};
            db.eseguiPerRighe(u"UPDATE [%2] SET [%1] = ? WHERE [%1] = ?"_s.arg(colonna.first(), tabella.first()),
                              cambi);
        }
    }
}

void Svolta::voltaPlaylist(const QString &file) const {
    const RigheLette lette = leggiRighe(file);
    QStringList righe = lette.righe;
    for (QString &riga : righe)
        riga = voltato(riga);
    if (!lette.motivo.isEmpty() || righe == lette.righe)
        return;
    if (const QString motivo = scriviRighe(file, righe); !motivo.isEmpty())
        throw Guasto{u"Impossibile scrivere %1: %2"_s.arg(QDir::toNativeSeparators(file), motivo)};
}

} // namespace zuvora::installa
