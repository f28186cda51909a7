#include "installer/importa/LettoreAccess.h"

#include "installer/importa/Flusso.h"

#include <QDate>
#include <QFile>
#include <QTime>
#include <cmath>
#include <cstring>
#include <limits>

extern "C" {
#include <mdbtools.h>
}

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr size_t memoMassimo = 32 * 1024 * 1024; // bytes of one memo
constexpr guint righeMassime = 50'000'000;

TipoAccess tipoDi(int tipo) {
    switch (tipo) {
    case MDB_BOOL:
        return TipoAccess::Logico;
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return TipoAccess::Intero;
    case MDB_FLOAT:
    case MDB_DOUBLE:
        return TipoAccess::Reale;
    case MDB_MONEY:
    case MDB_NUMERIC:
        return TipoAccess::Valuta;
    case MDB_DATETIME:
        return TipoAccess::Data;
    case MDB_BINARY:
    case MDB_OLE:
        return TipoAccess::Byte;
    default:
        return TipoAccess::Testo;
    }
}

template <class T> T grezzo(const MdbHandle &mdb, const MdbColumn &c) {
    T valore{};
    std::memcpy(&valore, mdb.pg_buf + c.cur_value_start, sizeof valore);
    return valore;
}

// The least text that reads back as the very number.
template <class T> QString reale(T valore) {
    return std::isfinite(valore) ? QString::number(double(valore), 'g', std::numeric_limits<T>::max_digits10)
                                 : QString();
}

// Four decimals, exactly.
QString valuta(qint64 diecimillesimi) {
    const bool negativa = diecimillesimi < 0;
    const quint64 valore = negativa ? quint64(-(diecimillesimi + 1)) + 1 : quint64(diecimillesimi);
    return (negativa ? u"-"_s : QString()) + QString::number(valore / 10000) + u'.' +
           QString::number(valore % 10000).rightJustified(4, u'0');
}

// Days from 30 December 1899; the fraction is the time of the day, before that date too.
QString data(double giorni) {
    if (!std::isfinite(giorni) || std::abs(giorni) > 3e6)
        return {};
    double interi = 0;
    const auto secondi = static_cast<qint64>(std::llround(std::abs(std::modf(giorni, &interi)) * 86400));
    const QDate giorno = QDate(1899, 12, 30).addDays(static_cast<qint64>(interi) + secondi / 86400);
    const QTime ora = QTime(0, 0).addSecs(static_cast<int>(secondi % 86400));
    return giorno.toString(Qt::ISODate) + (secondi % 86400 != 0 ? u' ' + ora.toString(u"HH:mm:ss") : QString());
}

QString daC(char *testo) {
    const QString s = QString::fromUtf8(testo);
    g_free(testo);
    return s.isNull() ? u""_s : s;
}

QString testoBreve(MdbHandle &mdb, const MdbColumn &c) {
    QByteArray utf8(4 * c.cur_value_len + 16, '\0');
    const int lungo = mdb_unicode2ascii(&mdb, reinterpret_cast<const char *>(mdb.pg_buf) + c.cur_value_start,
                                        size_t(c.cur_value_len), utf8.data(), size_t(utf8.size()));
    const QString s = QString::fromUtf8(utf8.constData(), lungo);
    return s.isNull() ? u""_s : s;
}

QString valoreDi(MdbHandle &mdb, MdbColumn &c) {
    if (c.col_type == MDB_BOOL)
        return c.cur_value_len == 0 ? u"1"_s : u"0"_s; // a set bit in the row's mask of Nulls, not a value
    if (c.cur_value_len == 0)
        return {};
    switch (c.col_type) {
    case MDB_BYTE:
        return QString::number(grezzo<quint8>(mdb, c));
    case MDB_INT:
        return QString::number(grezzo<qint16>(mdb, c));
    case MDB_LONGINT:
        return QString::number(grezzo<qint32>(mdb, c));
    case MDB_FLOAT:
        return reale(grezzo<float>(mdb, c));
    case MDB_DOUBLE:
        return reale(grezzo<double>(mdb, c));
    case MDB_MONEY:
        return valuta(grezzo<qint64>(mdb, c));
    case MDB_DATETIME:
        return data(grezzo<double>(mdb, c));
    case MDB_TEXT:
        return testoBreve(mdb, c);
    case MDB_BINARY:
        return QString::fromLatin1(
            QByteArray(reinterpret_cast<const char *>(mdb.pg_buf) + c.cur_value_start, c.cur_value_len).toHex());
    default:
        return daC(mdb_col_to_string(&mdb, mdb.pg_buf, c.cur_value_start, c.col_type, c.cur_value_len));
    }
}

MdbColumn &colonna(const MdbTableDef &tabella, guint i) {
    return *static_cast<MdbColumn *>(g_ptr_array_index(tabella.columns, i));
}

// False when the table has fewer rows than it says: pages of it are missing.
bool scriviTabella(QDataStream &s, MdbHandle &mdb, MdbTableDef &tabella) {
    TabellaAccess t{QString::fromUtf8(tabella.name), {}, qint32(tabella.num_rows)};
    for (guint i = 0; i < tabella.num_cols; ++i)
        t.colonne << ColonnaAccess{QString::fromUtf8(colonna(tabella, i).name), tipoDi(colonna(tabella, i).col_type)};
    s << quint8(Messaggio::Tabella) << t;
    mdb_rewind_table(&tabella);
    guint lette = 0;
    for (; lette < righeMassime && mdb_fetch_row(&tabella) != 0; ++lette) {
        QStringList riga;
        for (guint i = 0; i < tabella.num_cols; ++i)
            riga << valoreDi(mdb, colonna(tabella, i));
        s << quint8(Messaggio::Riga) << riga;
    }
    return lette >= tabella.num_rows;
}

// The list of tables lies in a table of its own, which can be cut short like any other.
bool elencoIntero(MdbHandle &mdb) {
    for (guint i = 0; i < mdb.num_catalog; ++i) {
        auto *voce = static_cast<MdbCatalogEntry *>(g_ptr_array_index(mdb.catalog, i));
        if (qstrcmp(voce->object_name, "MSysObjects") != 0)
            continue;
        MdbTableDef *elenco = mdb_read_table(voce);
        const bool intero = elenco != nullptr && mdb.num_catalog >= elenco->num_rows;
        if (elenco != nullptr)
            mdb_free_tabledef(elenco);
        return intero;
    }
    return false;
}

bool scriviTutte(QDataStream &s, MdbHandle &mdb) {
    if (mdb_read_catalog(&mdb, MDB_ANY) == nullptr || !elencoIntero(mdb))
        return false;
    for (guint i = 0; i < mdb.num_catalog; ++i) {
        auto *voce = static_cast<MdbCatalogEntry *>(g_ptr_array_index(mdb.catalog, i));
        if (voce->object_type == MDB_LINKED_TABLE)
            s << quint8(Messaggio::Collegata) << QString::fromUtf8(voce->object_name);
        if (voce->object_type != MDB_TABLE || mdb_is_system_table(voce) != 0)
            continue;
        MdbTableDef *tabella = mdb_read_table(voce);
        if (tabella == nullptr)
            return false;
        mdb_read_columns(tabella);
        const bool intera = scriviTabella(s, mdb, *tabella);
        mdb_free_tabledef(tabella);
        if (!intera)
            return false;
    }
    return true;
}
} // namespace

int leggiAccess(const QString &file, QIODevice &uscita) {
    QDataStream s(&uscita);
    // Texts of the older format are in the western code page; ours are UTF-8.
    qputenv("MDBICONV", "UTF-8");
    qputenv("MDB_JET3_CHARSET", "CP1252");
    MdbHandle *mdb = mdb_open(QFile::encodeName(file).constData(), MDB_NOFLAGS);
    const bool letto = mdb != nullptr && (mdb_set_bind_size(mdb, memoMassimo), scriviTutte(s, *mdb));
    s << quint8(letto ? Messaggio::Fine : Messaggio::Guasto);
    if (mdb != nullptr)
        mdb_close(mdb);
    return letto ? 0 : 1;
}

} // namespace zuvora::installa
