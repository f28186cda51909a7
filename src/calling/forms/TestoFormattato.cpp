#include "calling/forms/TestoFormattato.h"

#include "shell/host/Twips.h"

#include <QTextCursor>

namespace zuvora {
namespace {

constexpr double altezzaRiga = 125; // per cent; the house font's lines would touch

QTextBlockFormat formatoDi(const ParagrafoRtf &paragrafo) {
    QTextBlockFormat formato;
    formato.setLineHeight(altezzaRiga, QTextBlockFormat::ProportionalHeight);
    formato.setAlignment(paragrafo.allineamento);
    formato.setLeftMargin(pixelDa(paragrafo.rientro));
    formato.setTopMargin(pixelDa(paragrafo.sopra));
    formato.setBottomMargin(pixelDa(paragrafo.sotto));
    return formato;
}

QTextCharFormat formatoDi(const TrattoRtf &tratto) {
    QTextCharFormat formato;
    formato.setFontWeight(tratto.grassetto ? QFont::Bold : QFont::Normal);
    formato.setFontItalic(tratto.italico);
    formato.setFontUnderline(tratto.sottolineato);
    formato.setFontPointSize(tratto.punti);
    if (tratto.colore)
        formato.setForeground(QColor(QRgb(*tratto.colore)));
    return formato;
}

} // namespace

TestoFormattato::TestoFormattato(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setReadOnly(true);
    setTabChangesFocus(true);
}

void TestoFormattato::mostra(const std::vector<ParagrafoRtf> &paragrafi) {
    clear();
    QTextCursor cursore(document());
    bool primo = true;
    for (const ParagrafoRtf &paragrafo : paragrafi) {
        if (!primo)
            cursore.insertBlock();
        primo = false;
        cursore.setBlockFormat(formatoDi(paragrafo));
        for (const TrattoRtf &tratto : paragrafo.tratti)
            cursore.insertText(tratto.testo, formatoDi(tratto));
    }
    moveCursor(QTextCursor::Start);
}

void TestoFormattato::mostraAvviso(const QString &testo) {
    setPlainText(testo);
}

} // namespace zuvora
