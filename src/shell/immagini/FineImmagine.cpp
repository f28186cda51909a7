#include "shell/immagini/FineImmagine.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace zuvora {
namespace {

// The bytes of a file from its begin, read in pieces. Behind the end every byte is -1.
class Byte {
public:
    explicit Byte(QIODevice &file) : m_file(file) { file.seek(0); }

    int prendi() {
        if (m_posto == m_pezzo.size() && !altroPezzo())
            return -1;
        return static_cast<unsigned char>(m_pezzo[m_posto++]);
    }
    int prendi16() { // high byte first
        const int alto = prendi();
        const int basso = prendi();
        return basso < 0 ? -1 : alto << 8 | basso;
    }
    bool salta(qint64 quanti) {
        const qint64 qui = qMin<qint64>(quanti, m_pezzo.size() - m_posto);
        m_posto += qui;
        return quanti == qui ||
               (m_file.pos() + (quanti - qui) <= m_file.size() && m_file.seek(m_file.pos() + quanti - qui));
    }
    // Stands on the first byte of that value, or at the end.
    bool vaiA(char valore) {
        do {
            const auto *da = m_pezzo.constData() + m_posto;
            const auto *trovato = std::memchr(da, valore, static_cast<std::size_t>(m_pezzo.size() - m_posto));
            if (trovato != nullptr) {
                m_posto += static_cast<const char *>(trovato) - da;
                return true;
            }
        } while (altroPezzo());
        return false;
    }

private:
    bool altroPezzo() {
        constexpr qint64 lunghezza = 256 * 1024;
        m_pezzo = m_file.read(lunghezza);
        m_posto = 0;
        return !m_pezzo.isEmpty();
    }
    QIODevice &m_file;
    QByteArray m_pezzo;
    qsizetype m_posto = 0;
};

// A preview inside the file has an end marker of its own: markers are followed, not searched for.
bool jpeg(Byte byte) {
    byte.salta(2);
    while (byte.vaiA('\xFF')) {
        int segno = 0xFF;
        while (segno == 0xFF) // fill bytes
            segno = byte.prendi();
        if (segno == 0xD9)
            return true;
        if (segno < 0)
            return false;
        const bool senzaLunghezza = segno <= 0x01 || (segno >= 0xD0 && segno <= 0xD8); // data, restart, start
        if (senzaLunghezza)
            continue;
        const int lunghezza = byte.prendi16();
        if (lunghezza < 2 || !byte.salta(lunghezza - 2))
            return false;
    }
    return false;
}

bool saltaSottoblocchi(Byte &byte) {
    int lunghezza = byte.prendi();
    while (lunghezza > 0 && byte.salta(lunghezza))
        lunghezza = byte.prendi();
    return lunghezza == 0;
}

qint64 coloriGif(int opzioni) {
    return (opzioni & 0x80) != 0 ? 3LL << ((opzioni & 7) + 1) : 0;
}

bool gif(Byte byte) {
    byte.salta(10);
    if (!byte.salta(2 + coloriGif(byte.prendi())))
        return false;
    for (;;) {
        switch (byte.prendi()) {
        case 0x3B:
            return true;
        case 0x00: // padding of some writers
            continue;
        case 0x21:
            if (!byte.salta(1) || !saltaSottoblocchi(byte))
                return false;
            continue;
        case 0x2C:
            if (!byte.salta(8) || !byte.salta(coloriGif(byte.prendi()) + 1) || !saltaSottoblocchi(byte))
                return false;
            continue;
        default:
            return false;
        }
    }
}

bool png(Byte byte) {
    byte.salta(8);
    for (;;) {
        const qint64 alta = byte.prendi16();
        const qint64 lunghezza = alta << 16 | byte.prendi16();
        const int primo = byte.prendi16();
        const int secondo = byte.prendi16();
        if (alta < 0 || secondo < 0)
            return false;
        if (!byte.salta(lunghezza + 4))
            return false;
        if (primo == ('I' << 8 | 'E') && secondo == ('N' << 8 | 'D'))
            return true;
    }
}

qint64 numero(const QByteArray &testa, int posto, int quanti) { // low byte first
    qint64 n = 0;
    for (int i = quanti - 1; i >= 0; --i)
        n = n << 8 | static_cast<unsigned char>(testa.at(posto + i));
    return n;
}

constexpr int testaBmp = 54;

bool anticaBmp(const QByteArray &testa) {
    return numero(testa, 14, 4) == 12;
}

QSize misuraBmp(const QByteArray &testa) {
    if (anticaBmp(testa))
        return {static_cast<int>(numero(testa, 18, 2)), static_cast<int>(numero(testa, 20, 2))};
    const auto altezza = static_cast<qint32>(numero(testa, 22, 4)); // below 0 when the first line is the topmost
    return {static_cast<qint32>(numero(testa, 18, 4)), std::abs(std::max(altezza, -std::numeric_limits<int>::max()))};
}

bool bmp(const QByteArray &testa, qint64 lunghezza) {
    if (testa.size() < testaBmp)
        return false;
    const qint64 inizio = numero(testa, 10, 4);
    const bool antica = anticaBmp(testa);
    const QSize misura = misuraBmp(testa);
    const qint64 bit = antica ? numero(testa, 24, 2) : numero(testa, 28, 2);
    const qint64 metodo = antica ? 0 : numero(testa, 30, 4);
    const bool compressa = metodo == 1 || metodo == 2;
    const qint64 dati = compressa ? numero(testa, 34, 4) : (misura.width() * bit + 31) / 32 * 4 * misura.height();
    // Some writers leave out the lengths of what they compress: then that of the file has to do.
    return (dati > 0 ? inizio + dati : numero(testa, 2, 4)) <= lunghezza;
}

constexpr const char *inizioPng = "\x89PNG\r\n\x1a\n";

QByteArray testaDi(QIODevice &file) {
    constexpr qint64 letti = 64;
    file.seek(0);
    return file.read(letti);
}

} // namespace

QSize misuraDichiarata(QIODevice &file) {
    const QByteArray testa = testaDi(file);
    if (testa.startsWith("BM") && testa.size() >= testaBmp)
        return misuraBmp(testa);
    if (testa.startsWith(inizioPng) && testa.size() > 24)
        return {qFromBigEndian<qint32>(testa.constData() + 16), qFromBigEndian<qint32>(testa.constData() + 20)};
    return {};
}

bool arrivaAllaFine(QIODevice &file) {
    const QByteArray testa = testaDi(file);
    if (testa.startsWith("\xFF\xD8"))
        return jpeg(Byte(file));
    if (testa.startsWith("GIF8"))
        return gif(Byte(file));
    if (testa.startsWith(inizioPng))
        return png(Byte(file));
    if (testa.startsWith("BM"))
        return bmp(testa, file.size());
    if (testa.startsWith("RIFF") && testa.size() > 12)
        return numero(testa, 4, 4) + 8 <= file.size();
    return true;
}

} // namespace zuvora
