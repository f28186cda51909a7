#pragma once

#include <QByteArrayView>
#include <QString>
#include <Qt>
#include <optional>
#include <vector>

namespace zuvora {

// Text of one look.
struct TrattoRtf {
    QString testo; // a line break inside a paragraph is a line separator
    bool grassetto = false;
    bool italico = false;
    bool sottolineato = false;
    double punti = 12;
    std::optional<quint32> colore; // 0x00RRGGBB; nothing: the reader's own
    bool operator==(const TrattoRtf &) const = default;
};

struct ParagrafoRtf {
    std::vector<TrattoRtf> tratti;
    Qt::Alignment allineamento = Qt::AlignLeft;
    int rientro = 0; // twips, as the next two
    int sopra = 0;
    int sotto = 0;
};

// Reads the formatted text of a help file: paragraphs, bold, italic, underline, size, colour, accented letters. What
// else the file holds is skipped, however it is nested; what is no such file comes as it stands, in one look.
std::vector<ParagrafoRtf> leggiRtf(QByteArrayView byte);

} // namespace zuvora
