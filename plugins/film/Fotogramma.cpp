#include "film/Fotogramma.h"

#include <QVideoFrame>
#include <algorithm>

namespace zuvora {
namespace {

// Where brightness and the two colour differences of a frame lie.
struct Piani {
    const uchar *y, *u, *v;
    int passoY, passoC;    // bytes from one line to the next
    int trattoC;           // bytes from one colour sample to the next
    int divisoreVerticale; // lines of picture to one of colour, as a shift
};

// Coefficients in 1/65536 for the video range (16 to 235).
struct Coefficienti {
    int y, rV, gU, gV, bU;
};
constexpr Coefficienti bt601{76309, 104597, 25675, 53279, 132201};
constexpr Coefficienti bt709{76309, 117489, 13975, 34925, 138438};
constexpr int righeBt601 = 576; // taller films follow the newer rule

int limita(int v) {
    return std::clamp(v >> 16, 0, 255);
}

QRgb colore(const Coefficienti &k, int y, int u, int v) {
    const int base = k.y * (y - 16) + 32768;
    return qRgb(limita(base + k.rV * v), limita(base - k.gU * u - k.gV * v), limita(base + k.bU * u));
}

bool trovaPiani(const QVideoFrame &f, Piani &p) {
    p.y = f.bits(0);
    p.passoY = f.bytesPerLine(0);
    p.passoC = f.bytesPerLine(1);
    switch (f.pixelFormat()) {
    case QVideoFrameFormat::Format_YUV420P:
    case QVideoFrameFormat::Format_YUV422P:
        p.u = f.bits(1);
        p.v = f.bits(2);
        p.trattoC = 1;
        p.divisoreVerticale = f.pixelFormat() == QVideoFrameFormat::Format_YUV420P ? 1 : 0;
        return true;
    case QVideoFrameFormat::Format_NV12:
        p.u = f.bits(1);
        p.v = f.bits(1) + 1;
        p.trattoC = 2;
        p.divisoreVerticale = 1;
        return true;
    default:
        return false;
    }
}

QImage converti(const Piani &p, const QSize &misura) {
    QImage immagine(misura, QImage::Format_RGB32);
    const Coefficienti &k = misura.height() > righeBt601 ? bt709 : bt601;
    for (int riga = 0; riga < misura.height(); ++riga) {
        auto *uscita = reinterpret_cast<QRgb *>(immagine.scanLine(riga));
        const uchar *y = p.y + qsizetype(riga) * p.passoY;
        const qsizetype colori = qsizetype(riga >> p.divisoreVerticale) * p.passoC;
        for (int x = 0; x < misura.width(); ++x) {
            const qsizetype c = colori + qsizetype(x / 2) * p.trattoC;
            uscita[x] = colore(k, y[x], p.u[c] - 128, p.v[c] - 128);
        }
    }
    return immagine;
}

} // namespace

QImage immagineDi(const QVideoFrame &fotogramma) {
    QVideoFrame f = fotogramma;
    if (!f.map(QVideoFrame::ReadOnly))
        return {};
    Piani piani{};
    QImage immagine;
    const bool nota = trovaPiani(f, piani);
    if (nota)
        immagine = converti(piani, f.size());
    f.unmap();
    return nota ? immagine : f.toImage();
}

} // namespace zuvora
