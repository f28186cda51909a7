#include "Gif.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <vector>

namespace zuvora::disegna {

namespace {

constexpr int bitColore = 8;
constexpr int trasparente = 255;
constexpr int codiciMassimi = 4096;

struct Indici {
    std::vector<QRgb> colori;
    std::vector<int> punti;
};

// Cuts the low bits of each channel: 0 keeps the colour as it is.
QRgb ridotto(QRgb colore, int bit) {
    const auto canale = [bit](int valore) {
        return bit == 0 ? valore : std::min(255, ((valore >> bit) << bit) + (1 << (bit - 1)));
    };
    return qRgb(canale(qRed(colore)), canale(qGreen(colore)), canale(qBlue(colore)));
}

// False when more colours turn up than the table holds.
bool conta(const QImage &immagine, int bit, Indici &esito) {
    std::map<QRgb, int> visti;
    esito = {};
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            const QRgb punto = immagine.pixel(x, y);
            if (qAlpha(punto) < 128) {
                esito.punti.push_back(trasparente);
                continue;
            }
            const auto [posto, nuovo] = visti.try_emplace(ridotto(punto, bit), static_cast<int>(visti.size()));
            if (nuovo)
                esito.colori.push_back(posto->first);
            if (visti.size() > trasparente)
                return false;
            esito.punti.push_back(posto->second);
        }
    }
    return true;
}

Indici indici(const QImage &immagine) {
    Indici esito;
    for (int bit = 0; !conta(immagine, bit, esito); ++bit) {
    }
    return esito;
}

// Codes of growing width, lowest bit first, in blocks of up to 255 bytes.
class Blocchi {
public:
    explicit Blocchi(QByteArray &uscita) : m_uscita(uscita) {}
    void codice(int valore, int larghezza) {
        m_resto |= static_cast<unsigned>(valore) << m_bit;
        for (m_bit += larghezza; m_bit >= 8; m_bit -= 8, m_resto >>= 8)
            byte();
    }
    void chiudi() {
        if (m_bit > 0)
            byte();
        svuota();
        m_uscita.append('\0');
    }

private:
    void byte() {
        m_blocco.append(static_cast<char>(m_resto & 0xffU));
        if (m_blocco.size() == 255)
            svuota();
    }
    void svuota() {
        if (m_blocco.isEmpty())
            return;
        m_uscita.append(static_cast<char>(m_blocco.size()));
        m_uscita.append(m_blocco);
        m_blocco.clear();
    }
    QByteArray &m_uscita;
    QByteArray m_blocco;
    unsigned m_resto = 0;
    int m_bit = 0;
};

void comprimi(const std::vector<int> &punti, QByteArray &uscita) {
    constexpr int azzera = 1 << bitColore;
    constexpr int fine = azzera + 1;
    Blocchi blocchi{uscita};
    std::map<std::pair<int, int>, int> sequenze;
    int prossimo = fine + 1;
    int larghezza = bitColore + 1;
    // The reader learns a sequence one code later, so the width grows when the next number no longer fits.
    const auto emetti = [&](int codice) {
        blocchi.codice(codice, larghezza);
        if (prossimo == 1 << larghezza && prossimo < codiciMassimi)
            ++larghezza;
    };
    const auto ricomincia = [&] {
        blocchi.codice(azzera, larghezza);
        sequenze.clear();
        prossimo = fine + 1;
        larghezza = bitColore + 1;
    };
    ricomincia();
    int corrente = punti.front();
    for (auto punto = punti.begin() + 1; punto != punti.end(); ++punto) {
        if (const auto nota = sequenze.find({corrente, *punto}); nota != sequenze.end()) {
            corrente = nota->second;
            continue;
        }
        emetti(corrente);
        if (prossimo == codiciMassimi)
            ricomincia();
        else
            sequenze[{corrente, *punto}] = prossimo++;
        corrente = *punto;
    }
    emetti(corrente);
    blocchi.codice(fine, larghezza);
    blocchi.chiudi();
}

void parola(QByteArray &uscita, int valore) {
    uscita.append(static_cast<char>(valore & 0xff));
    uscita.append(static_cast<char>(valore >> 8));
}

void tavola(QByteArray &uscita, std::vector<QRgb> colori) {
    colori.resize(std::size_t{1} << bitColore, qRgb(0, 0, 0));
    for (const QRgb colore : colori)
        for (const int canale : {qRed(colore), qGreen(colore), qBlue(colore)})
            uscita.append(static_cast<char>(canale));
}

} // namespace

QByteArray gif(const QImage &immagine) {
    if (immagine.isNull() || immagine.width() > 0xffff || immagine.height() > 0xffff)
        throw std::invalid_argument("immagine non adatta al formato GIF");
    const Indici dati = indici(immagine.convertToFormat(QImage::Format_ARGB32));
    QByteArray uscita{"GIF89a"};
    parola(uscita, immagine.width());
    parola(uscita, immagine.height());
    uscita.append(QByteArray::fromHex("f70000")); // global table of 256 colours
    tavola(uscita, dati.colori);
    uscita.append(QByteArray::fromHex("21f9040100 00ff00")); // transparent index, no delay
    uscita.append(QByteArray::fromHex("2c00000000"));        // picture at 0, 0
    parola(uscita, immagine.width());
    parola(uscita, immagine.height());
    uscita.append('\0');
    uscita.append(static_cast<char>(bitColore));
    comprimi(dati.punti, uscita);
    uscita.append(';');
    return uscita;
}

} // namespace zuvora::disegna
