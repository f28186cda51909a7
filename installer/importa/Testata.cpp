#include "installer/importa/Testata.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cstring>
#include <numeric>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qsizetype lunghezzaTestata = 0x100;
constexpr qsizetype paginaMinima = 2048;
constexpr qsizetype postoFormato = 0x14;
constexpr qsizetype inizioMascherato = 0x18;
constexpr qsizetype postoChiave = 0x3e;
constexpr qsizetype postoParola = 0x42;
constexpr qsizetype postoData = 0x72;
constexpr uchar jet3 = 0;
constexpr uchar jet4 = 1;

// The head is masked with a fixed key that every database of the kind shares.
QByteArray senzaMaschera(QByteArrayView testata, qsizetype lunghezza) {
    constexpr std::array<uchar, 4> chiave{0xc7, 0xda, 0x39, 0x6b};
    std::array<uchar, 256> stato{};
    std::iota(stato.begin(), stato.end(), uchar(0));
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + stato[i] + chiave[i % 4]) & 0xff;
        std::swap(stato[i], stato[j]);
    }
    QByteArray chiara = testata.toByteArray();
    unsigned a = 0;
    unsigned b = 0;
    for (qsizetype i = inizioMascherato; i < inizioMascherato + lunghezza; ++i) {
        a = (a + 1) & 0xff;
        b = (b + stato[a]) & 0xff;
        std::swap(stato[a], stato[b]);
        chiara[i] = char(uchar(chiara[i]) ^ stato[(stato[a] + stato[b]) & 0xff]);
    }
    return chiara;
}

bool haParola(const QByteArray &chiara, bool quattro) {
    if (!quattro)
        return chiara.mid(postoParola, 20).count('\0') != 20;
    // In the newer format the password is masked once more, with the date of the database's making.
    double data = 0;
    std::memcpy(&data, chiara.constData() + postoData, sizeof data);
    const auto giorno = static_cast<qint32>(data);
    std::array<char, 4> maschera{};
    std::memcpy(maschera.data(), &giorno, sizeof giorno);
    for (qsizetype i = 0; i < 40; ++i)
        if (chiara[postoParola + i] != 0 && chiara[postoParola + i] != maschera[std::size_t(i % 4)])
            return true;
    return false;
}
} // namespace

QString rifiutoTestata(QByteArrayView testata, const QString &nome) {
    if (testata.size() < lunghezzaTestata)
        return u"%1 non è un database Access: è troppo corto."_s.arg(nome);
    const bool ace = testata.sliced(4).startsWith("Standard ACE DB");
    if (!ace && !testata.sliced(4).startsWith("Standard Jet DB"))
        return u"%1 non è un database Access."_s.arg(nome);
    const uchar formato = uchar(testata[postoFormato]);
    if (ace || formato > jet4)
        return u"%1 è di un Access più recente del 2003: va prima convertito, con Access, nel formato 2000 o 2002-2003."_s
            .arg(nome);
    const QByteArray chiara = senzaMaschera(testata, formato == jet3 ? 126 : 128);
    if (chiara.mid(postoChiave, 4).count('\0') != 4)
        return u"%1 è codificato: va prima decodificato, con Access."_s.arg(nome);
    if (haParola(chiara, formato == jet4))
        return u"%1 è protetto da una password: va prima tolta, con Access."_s.arg(nome);
    return {};
}

QString rifiutoAccess(const QString &file) {
    const QString nome = QDir::toNativeSeparators(file);
    const QFileInfo info(file);
    if (!info.exists())
        return u"%1 non esiste."_s.arg(nome);
    if (!info.isFile())
        return u"%1 non è un file."_s.arg(nome);
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return u"%1 non può essere letto: %2"_s.arg(nome, f.errorString());
    const QByteArray testata = f.read(lunghezzaTestata);
    QString rifiuto = rifiutoTestata(testata, nome);
    if (!rifiuto.isEmpty())
        return rifiuto;
    const qint64 pagina = uchar(testata[postoFormato]) == jet3 ? paginaMinima : 2 * paginaMinima;
    if (info.size() % pagina != 0 || info.size() < 3 * pagina)
        return u"%1 è incompleto: la sua lunghezza non è quella di un database intero."_s.arg(nome);
    return {};
}

} // namespace zuvora::installa
