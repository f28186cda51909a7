#include "shell/logic/TestoAnsi.h"

#include "shell/logic/FileAtomico.h"

#include <algorithm>
#include <array>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr unsigned char inizioTabella = 0x80;
// The characters of the bytes 0x80 to 0x9F; above and below them the byte is the character's number.
constexpr std::array<char16_t, 32> tabella = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

int byteDi(char16_t c) {
    if (c < inizioTabella || (c >= inizioTabella + tabella.size() && c <= 0xFF))
        return c;
    const auto *trovato = std::ranges::find(tabella, c);
    return trovato == tabella.end() ? -1 : inizioTabella + static_cast<int>(trovato - tabella.begin());
}

qsizetype postoFuori(QStringView testo) {
    const auto fuori = [](QChar c) { return byteDi(c.unicode()) < 0; };
    return std::ranges::find_if(testo, fuori) - testo.begin();
}

// Puts the text's bytes at `dove`, where there is room for one a character; false when a character has none.
bool copia(char *dove, QStringView testo) {
    // Nearly every text is plain, which shows without looking its characters up one by one.
    char16_t insieme = 0;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const char16_t c = testo.utf16()[i];
        insieme |= c;
        dove[i] = static_cast<char>(c);
    }
    if (insieme < inizioTabella)
        return true;
    if (postoFuori(testo) < testo.size())
        return false;
    std::ranges::transform(testo, dove, [](QChar c) { return static_cast<char>(byteDi(c.unicode())); });
    return true;
}

} // namespace

QString daAnsi(QByteArrayView byte) {
    QString testo = QString::fromLatin1(byte);
    for (QChar &c : testo)
        if (c.unicode() >= inizioTabella && c.unicode() < inizioTabella + tabella.size())
            c = tabella[static_cast<std::size_t>(c.unicode() - inizioTabella)];
    return testo;
}

std::optional<QByteArray> inAnsi(QStringView testo) {
    QByteArray byte(testo.size(), Qt::Uninitialized);
    return copia(byte.data(), testo) ? std::optional(byte) : std::nullopt;
}

QString fuoriAnsi(QStringView testo) {
    const qsizetype posto = postoFuori(testo);
    const bool coppia = posto + 1 < testo.size() && testo[posto].isHighSurrogate() && testo[posto + 1].isLowSurrogate();
    return testo.sliced(std::min(posto, testo.size())).left(coppia ? 2 : 1).toString();
}

QStringList righeAnsi(QByteArrayView byte) {
    QStringList righe;
    while (!byte.isEmpty()) {
        const qsizetype fine = byte.indexOf('\n');
        QByteArrayView riga = fine < 0 ? byte : byte.first(fine);
        if (fine >= 0 && riga.endsWith('\r'))
            riga.chop(1);
        righe += daAnsi(riga);
        byte = fine < 0 ? QByteArrayView() : byte.sliced(fine + 1);
    }
    return righe;
}

RigheLette leggiRighe(const QString &percorso) {
    const FileLetto file = leggiFile(percorso);
    return {righeAnsi(file.contenuto), file.motivo};
}

QString scriviRighe(const QString &percorso, const QStringList &righe) {
    qsizetype misura = 0;
    for (const QString &riga : righe)
        misura += riga.size() + 2;
    QByteArray contenuto(misura, Qt::Uninitialized);
    char *dove = contenuto.data();
    for (qsizetype i = 0; i < righe.size(); ++i) {
        const QStringView riga = righe[i];
        if (!copia(dove, riga))
            return u"La riga %1 contiene il carattere «%2», che il file non può contenere."_s.arg(i + 1).arg(
                fuoriAnsi(riga));
        if (std::memchr(dove, '\n', static_cast<std::size_t>(riga.size())) != nullptr)
            return u"La riga %1 contiene un a capo, che il file non può contenere."_s.arg(i + 1);
        dove += riga.size();
        *dove++ = '\r';
        *dove++ = '\n';
    }
    return scriviFile(percorso, contenuto);
}

} // namespace zuvora
