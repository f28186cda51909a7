#include "kit/InstallazioneProva.h"

#include "shell/host/Stile.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

void copiaCartella(const QString &da, const QString &in) {
    QDirIterator file(da, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        file.next();
        const QString relativo = QDir(da).relativeFilePath(file.filePath());
        if (relativo.startsWith(u"zuvora"_s) || relativo.endsWith(u".so"_s))
            continue;
        QDir(in).mkpath(QFileInfo(relativo).path());
        QFile::copy(file.filePath(), QDir(in).filePath(relativo));
    }
}

struct ChiudiArchivio {
    void operator()(sqlite3 *db) const { sqlite3_close(db); }
};
struct ChiudiIstruzione {
    void operator()(sqlite3_stmt *s) const { sqlite3_finalize(s); }
};

// Steps through a query; a failure throws with the engine's text.
void percorri(const QString &archivio, const QString &sql, const std::function<bool(sqlite3_stmt *)> &riga) {
    sqlite3 *grezzo = nullptr;
    sqlite3_open_v2(archivio.toUtf8().constData(), &grezzo, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, ChiudiArchivio> db(grezzo);
    sqlite3_busy_timeout(grezzo, 5000);
    sqlite3_exec(grezzo, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr); // a test's file needs no safety
    const QByteArray testo = sql.toUtf8();
    const char *resto = testo.constData();
    while (*resto != '\0') {
        sqlite3_stmt *preparata = nullptr;
        if (sqlite3_prepare_v2(grezzo, resto, -1, &preparata, &resto) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(grezzo));
        const std::unique_ptr<sqlite3_stmt, ChiudiIstruzione> istruzione(preparata);
        if (preparata == nullptr)
            return;
        int esito = SQLITE_ROW;
        while ((esito = sqlite3_step(preparata)) == SQLITE_ROW)
            if (!riga(preparata))
                return;
        if (esito != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(grezzo));
    }
}

QVariant colonna(sqlite3_stmt *s, int i) {
    switch (sqlite3_column_type(s, i)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return QVariant::fromValue<qlonglong>(sqlite3_column_int64(s, i));
    case SQLITE_FLOAT:
        return sqlite3_column_double(s, i);
    default:
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(s, i)));
    }
}

} // namespace

void preparaApplicazione() {
    static int argc = 1;
    static char nome[] = "prova";
    static char *argv[] = {nome, nullptr};
    static auto *applicazione = [] {
        auto *nuova = new QApplication(argc, argv);
        preparaAspetto(*nuova);
        QApplication::setQuitOnLastWindowClosed(false);
        return nuova;
    }();
    Q_UNUSED(applicazione)
}

InstallazioneProva::InstallazioneProva() {
    preparaApplicazione();
    copiaCartella(QStringLiteral(CARTELLA_BASE), m_cartella.path());
    piattaforma.cartella = cartella();
    valori.PercorsoApplicazione = cartella();
    // The rows of the installation that was copied name its own folder.
    QStringList sql{u"PRAGMA synchronous=OFF; BEGIN"_s};
    const QString sostituisci = u"UPDATE %1 SET %2=replace(%2,'%3','%4') WHERE %2 LIKE '%3%'"_s;
    sql << sostituisci.arg(u"ConfigurazioneTotem"_s, u"PercorsoReteTotem"_s, QStringLiteral(CARTELLA_BASE), cartella());
    for (const QString &tabella : righe(u"SELECT name FROM sqlite_schema WHERE name LIKE 'Layout%'"_s))
        sql << sostituisci.arg(tabella, u"PercorsoImmagine"_s, QStringLiteral(CARTELLA_BASE), cartella());
    esegui(sql.join(u';') + u";COMMIT"_s);
}

void InstallazioneProva::esegui(const QString &sql) const {
    percorri(archivio(), sql, [](sqlite3_stmt *) { return true; });
}

QVariant InstallazioneProva::valore(const QString &sql) const {
    QVariant esito;
    percorri(archivio(), sql, [&](sqlite3_stmt *s) {
        esito = colonna(s, 0);
        return false;
    });
    return esito;
}

QStringList InstallazioneProva::righe(const QString &sql) const {
    QStringList esito;
    percorri(archivio(), sql, [&](sqlite3_stmt *s) {
        QStringList riga;
        for (int i = 0; i < sqlite3_column_count(s); ++i) {
            const QVariant v = colonna(s, i);
            riga << (v.isValid() ? v.toString() : u"NULL"_s);
        }
        esito << riga.join(u'|');
        return true;
    });
    return esito;
}

QByteArray InstallazioneProva::contenuto() const {
    QFile f(archivio());
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace zuvora
