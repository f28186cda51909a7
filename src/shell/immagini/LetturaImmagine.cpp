#include "shell/immagini/LetturaImmagine.h"

#include "shell/immagini/FineImmagine.h"
#include "shell/logic/FileAtomico.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qint64 puntiMassimi = 500'000'000;
constexpr qint64 memoriaMassima = 512LL * 1024 * 1024; // bytes, for a picture that can't be decoded into a smaller one
constexpr int limiteLettore = 2000;                    // MB; the reader counts four bytes for a point of any format

// A picture file that counts what is read of it, and reads as ended when its reading is given up.
class FileSorvegliato : public QFile {
public:
    FileSorvegliato(const QString &percorso, Avanzamento *avanzamento) : QFile(percorso), m_avanzamento(avanzamento) {}
    // From now on what is read is decoded; before, it was only looked through.
    void siDecodifica() { m_conta = true; }

protected:
    qint64 readData(char *dati, qint64 massimo) override {
        if (m_avanzamento == nullptr)
            return QFile::readData(dati, massimo);
        if (m_avanzamento->annullato())
            return -1;
        const qint64 letti = QFile::readData(dati, massimo);
        if (m_conta)
            m_avanzamento->setParte(std::min(m_letti += letti, size()), size());
        return letti;
    }

private:
    Avanzamento *m_avanzamento;
    bool m_conta = false;
    qint64 m_letti = 0;
};

// Opens the file; a sentence when it can't be a picture.
QString apri(QFile &file) {
    const QFileInfo info(percorsoPossibile(file.fileName()) ? file.fileName() : QString());
    if (!info.exists())
        return u"File non trovato."_s;
    if (!info.isFile())
        return u"Non è un file."_s;
    if (info.size() > fileImmagineMassimo)
        return u"Il file è troppo grande (%1, al massimo %2)."_s.arg(misuraFile(info.size()),
                                                                     misuraFile(fileImmagineMassimo));
    return file.open(QIODevice::ReadOnly) ? QString() : u"Il file non si può aprire: mancano i permessi ?"_s;
}

QString nonImmagine() {
    return u"Il file non è un'immagine leggibile."_s;
}

// Formats that are decoded into the smaller size at once. Of PNG only full colour without interlace is; the reader
// would make a whole copy of another one at four bytes a point.
bool siLeggeRidotta(const QImageReader &lettore, QIODevice &file) {
    if (lettore.format() == "jpeg" || lettore.format() == "svg")
        return true;
    const qint64 posto = file.pos();
    file.seek(0);
    const QByteArray testa = file.read(29);
    file.seek(posto);
    return lettore.format() == "png" && testa.size() == 29 && testa[24] == 8 && (testa[25] == 2 || testa[25] == 6) &&
           testa[28] == 0;
}

// Formats of which a decoder gives a corner without holding the whole.
bool siRitaglia(const QImageReader &lettore) {
    return (lettore.format() == "jpeg" || lettore.format() == "svg") &&
           lettore.transformation() == QImageIOHandler::TransformationNone;
}

qint64 puntiDi(const QSize &misura) {
    return qint64{misura.width()} * misura.height();
}

bool troppi(const QImageReader &lettore, QIODevice &file, Lettura lettura) {
    const qint64 punti = puntiDi(lettore.size());
    const int bit = QImage::toPixelFormat(lettore.imageFormat()).bitsPerPixel();
    const qint64 byte = punti * (bit > 0 ? bit : 32) / 8;
    if (punti > puntiMassimi || byte <= memoriaMassima)
        return punti > puntiMassimi;
    return lettura == Lettura::Ritaglio ? !siRitaglia(lettore) : !siLeggeRidotta(lettore, file);
}

QString troppoGrande(const QSize &misura) {
    return u"L'immagine è troppo grande (%1 x %2 punti)."_s.arg(misura.width()).arg(misura.height());
}

// Why the reader tells no size where the format has one.
QString senzaMisura(QIODevice &file) {
    constexpr int latoMassimo = 1'000'000; // of the readers: PNG
    constexpr qint64 puntiBmp = 16'384LL * 16'384;
    const QSize misura = misuraDichiarata(file);
    if (!misura.isValid())
        return {};
    const bool oltre = misura.width() > latoMassimo || misura.height() > latoMassimo || puntiDi(misura) > puntiBmp;
    return oltre ? troppoGrande(misura) : nonImmagine();
}

// Sets the reader up; a sentence when the file is no picture that can be read.
QString prepara(QImageReader &lettore, QIODevice &file, Lettura lettura) {
    [[maybe_unused]] static const bool limite = (QImageReader::setAllocationLimit(limiteLettore), true);
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    if (!lettore.canRead())
        return nonImmagine();
    const QSize misura = lettore.size();
    if (misura.isValid() && troppi(lettore, file, lettura))
        return troppoGrande(misura);
    const qint64 posto = file.pos();
    if (QString motivo = misura.isValid() ? QString() : senzaMisura(file); !motivo.isEmpty())
        return motivo;
    const bool intera = arrivaAllaFine(file);
    file.seek(posto);
    return intera ? QString() : u"L'immagine è incompleta: il file finisce prima del tempo."_s;
}

bool girata(const QImageReader &lettore) {
    return lettore.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

// As the user sees it, the camera's turn done.
QSize misuraDi(const QImageReader &lettore) {
    const QSize misura = lettore.size();
    return girata(lettore) && misura.isValid() ? misura.transposed() : misura;
}

bool supera(const QSize &misura, const QSize &massimo) {
    return misura != misura.boundedTo(massimo);
}

QSize ridotta(const QSize &misura, const QSize &massimo, Riduzione riduzione) {
    if (riduzione == Riduzione::Riempi)
        return misura.boundedTo(massimo);
    return misura.scaled(massimo, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage riduci(QImage grande, const QSize &misura) {
    const QSize meta = misura * 2;
    if (grande.width() > meta.width() * 2 && grande.height() > meta.height() * 2)
        grande = grande.scaled(meta); // smoothing needs four bytes a point: not of the whole of a huge picture
    return grande.scaled(misura, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QSize misuraImmagine(const QString &percorso) {
    QFile file(percorso);
    if (!apri(file).isEmpty())
        return {};
    QImageReader lettore(&file);
    lettore.setDecideFormatFromContent(true);
    const QSize misura = misuraDi(lettore);
    return misura.isValid() ? misura : QSize();
}

QString difettoImmagine(const QString &percorso, Lettura lettura) {
    QFile file(percorso);
    if (QString motivo = apri(file); !motivo.isEmpty())
        return motivo;
    QImageReader lettore(&file);
    return prepara(lettore, file, lettura);
}

ImmagineLetta leggi(const QString &percorso, const QSize &massimo, Riduzione riduzione, Avanzamento *avanzamento) {
    const auto annullata = [&] { return avanzamento != nullptr && avanzamento->annullato(); };
    FileSorvegliato file(percorso, avanzamento);
    QString motivo = apri(file);
    QImageReader lettore(&file);
    if (motivo.isEmpty())
        motivo = prepara(lettore, file, Lettura::Ridotta);
    if (annullata())
        return {{}, {}, true};
    if (!motivo.isEmpty())
        return {{}, motivo, false};
    if (const QSize misura = misuraDi(lettore);
        misura.isValid() && supera(misura, massimo) && siLeggeRidotta(lettore, file)) {
        const QSize piccola = ridotta(misura, massimo, riduzione);
        lettore.setScaledSize(girata(lettore) ? piccola.transposed() : piccola);
    }
    file.siDecodifica();
    QImage letta = lettore.read();
    if (annullata())
        return {{}, {}, true};
    if (letta.isNull())
        return {{}, nonImmagine(), false};
    if (avanzamento != nullptr)
        avanzamento->setParte(1, 1); // what follows the picture in the file is not read
    if (supera(letta.size(), massimo))
        letta = riduci(letta, ridotta(letta.size(), massimo, riduzione));
    return {letta, {}, false};
}

QImage leggiImmagine(const QString &percorso, const QSize &massimo, Riduzione riduzione) {
    return leggi(percorso, massimo, riduzione).immagine;
}

ImmagineLetta leggiRitaglio(const QString &percorso, const QSize &misura) {
    QFile file(percorso);
    QImageReader lettore(&file);
    QString motivo = apri(file);
    if (motivo.isEmpty())
        motivo = prepara(lettore, file, Lettura::Ritaglio);
    if (!motivo.isEmpty())
        return {{}, motivo};
    const QRect ritaglio(QPoint(), misura);
    // Only where it cuts something off: told of its whole size, a decoder would take another way for nothing.
    if (const QSize intera = lettore.size();
        intera.isValid() && supera(intera, misura) && lettore.transformation() == QImageIOHandler::TransformationNone)
        lettore.setClipRect(ritaglio & QRect(QPoint(), intera));
    const QImage letta = lettore.read();
    if (letta.isNull())
        return {{}, nonImmagine()};
    return {supera(letta.size(), misura) ? letta.copy(ritaglio & letta.rect()) : letta, {}};
}

} // namespace zuvora
