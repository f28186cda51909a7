#include "calling/logic/Rtf.h"

#include "shell/logic/TestoAnsi.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace zuvora {
namespace {

constexpr std::size_t massimoGruppi = 200; // whose look is kept; deeper ones have that of the last
constexpr int massimoMezziPunti = 200;
constexpr int massimoTwips = 5760;

// What holds up to the end of a group.
struct Stato {
    TrattoRtf aspetto; // its text stays empty
    bool saltato = false;
    bool tavola = false; // in the table of colours
    int dopoUnicode = 1; // characters that stand for a Unicode one to readers that don't know it
};

// One pass over the bytes. The nesting is kept in a list of limited length, not on the stack: a hostile file opens a
// million groups.
struct Lettura {
    explicit Lettura(QByteArrayView b) : byte(b) {}

    void leggi();
    void passo();
    void apriGruppo();
    void chiudiGruppo();
    void controllo();
    void simbolo(char c);
    void scrivi(QStringView testo);
    void scriviAnsi(char c);
    void finisciParagrafo();
    void scegliColore(int indice);
    void unicode(int valore);
    void cambiaColore(int bit, int valore);

    QByteArrayView byte;
    qsizetype posto = 0;
    Stato stato;
    std::vector<Stato> gruppi;
    qsizetype oltre = 0; // groups open beyond those that are kept
    int daIgnorare = 0;
    quint32 colore = 0; // the one that the table is telling
    bool coloreDetto = false;
    std::vector<std::optional<quint32>> colori;
    ParagrafoRtf paragrafo;
    std::vector<ParagrafoRtf> paragrafi;
};

void salta(Lettura &l, int) {
    l.stato.saltato = true;
}

template <char16_t c> void segno(Lettura &l, int) {
    const QChar uno(c);
    l.scrivi(QStringView(&uno, 1));
}

template <Qt::AlignmentFlag verso> void allinea(Lettura &l, int) {
    l.paragrafo.allineamento = verso;
}

template <int ParagrafoRtf::*misura> void distanza(Lettura &l, int twips) {
    l.paragrafo.*misura = std::clamp(twips, 0, massimoTwips);
}

template <bool TrattoRtf::*quale> void attiva(Lettura &l, int valore) {
    l.stato.aspetto.*quale = valore != 0;
}

template <int byte> void componente(Lettura &l, int valore) {
    l.cambiaColore(8 * byte, valore);
}

struct Parola {
    QByteArrayView nome;
    void (*azione)(Lettura &, int valore); // a switch without a number is on
};

// The words that are understood; any other is skipped.
const Parola Parole[] = {
    {"par", [](Lettura &l, int) { l.finisciParagrafo(); }},
    {"pard",
     [](Lettura &l, int) {
         l.paragrafo = {std::move(l.paragrafo.tratti), Qt::AlignLeft, 0, 0, 0};
     }},
    {"plain", [](Lettura &l, int) { l.stato.aspetto = {}; }},
    {"b", attiva<&TrattoRtf::grassetto>},
    {"i", attiva<&TrattoRtf::italico>},
    {"ul", attiva<&TrattoRtf::sottolineato>},
    {"ulnone", [](Lettura &l, int) { l.stato.aspetto.sottolineato = false; }},
    {"fs", [](Lettura &l, int v) { l.stato.aspetto.punti = std::clamp(v, 2, massimoMezziPunti) / 2.0; }},
    {"cf", [](Lettura &l, int v) { l.scegliColore(v); }},
    {"red", componente<2>},
    {"green", componente<1>},
    {"blue", componente<0>},
    {"u", [](Lettura &l, int v) { l.unicode(v); }},
    {"uc", [](Lettura &l, int v) { l.stato.dopoUnicode = std::clamp(v, 0, 16); }},
    {"bin", [](Lettura &l, int v) { l.posto = std::min(l.byte.size(), l.posto + std::max(v, 0)); }},
    {"ql", allinea<Qt::AlignLeft>},
    {"qr", allinea<Qt::AlignRight>},
    {"qc", allinea<Qt::AlignHCenter>},
    {"qj", allinea<Qt::AlignJustify>},
    {"li", distanza<&ParagrafoRtf::rientro>},
    {"sb", distanza<&ParagrafoRtf::sopra>},
    {"sa", distanza<&ParagrafoRtf::sotto>},
    {"line", segno<u'\u2028'>},
    {"tab", segno<u'\t'>},
    {"emdash", segno<u'—'>},
    {"endash", segno<u'–'>},
    {"lquote", segno<u'‘'>},
    {"rquote", segno<u'’'>},
    {"ldblquote", segno<u'“'>},
    {"rdblquote", segno<u'”'>},
    {"bullet", segno<u'•'>},
    {"colortbl", [](Lettura &l, int) { l.stato.tavola = true; }},
    {"fonttbl", salta},
    {"stylesheet", salta},
    {"info", salta},
    {"pict", salta},
    {"object", salta},
    {"header", salta},
    {"footer", salta},
    {"footnote", salta},
};

void Lettura::leggi() {
    while (posto < byte.size())
        passo();
    if (!paragrafo.tratti.empty())
        finisciParagrafo();
}

void Lettura::passo() {
    switch (const char c = byte[posto++]) {
    case '{':
        apriGruppo();
        break;
    case '}':
        chiudiGruppo();
        break;
    case '\\':
        controllo();
        break;
    case '\r':
    case '\n':
    case '\0':
        break;
    default:
        scriviAnsi(c);
    }
}

void Lettura::apriGruppo() {
    daIgnorare = 0;
    if (gruppi.size() < massimoGruppi)
        gruppi.push_back(stato);
    else
        ++oltre;
}

void Lettura::chiudiGruppo() {
    daIgnorare = 0;
    if (oltre > 0) {
        --oltre;
    } else if (!gruppi.empty()) {
        stato = gruppi.back();
        gruppi.pop_back();
    }
}

// Behind a backslash: a word, perhaps with a number, ended by a blank that belongs to it; or one sign.
void Lettura::controllo() {
    const auto eLettera = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const qsizetype inizio = posto;
    while (posto < byte.size() && eLettera(byte[posto]))
        ++posto;
    if (posto == inizio) {
        if (posto < byte.size())
            simbolo(byte[posto++]);
        return;
    }
    const QByteArrayView nome = byte.sliced(inizio, posto - inizio);
    int numero = 1;
    const char *da = byte.data() + posto;
    const auto [fine, errore] = std::from_chars(da, byte.data() + byte.size(), numero);
    posto += fine - da;
    if (posto < byte.size() && byte[posto] == ' ')
        ++posto;
    if (stato.saltato && nome != "bin") // its paragraphs are none of the text's
        return;
    const auto parola = std::ranges::find(Parole, nome, &Parola::nome);
    if (parola != std::end(Parole))
        parola->azione(*this, errore == std::errc::result_out_of_range ? 0 : numero);
}

// The character that two hexadecimal digits give.
std::optional<char> esadecimale(QByteArrayView cifre) {
    unsigned char codice = 0;
    if (cifre.size() < 2 || std::from_chars(cifre.data(), cifre.data() + 2, codice, 16).ptr != cifre.data() + 2)
        return std::nullopt;
    return char(codice);
}

void Lettura::simbolo(char c) {
    switch (c) {
    case '\'':
        if (const auto codice = esadecimale(byte.sliced(posto))) {
            posto += 2;
            scriviAnsi(*codice);
        }
        break;
    case '\\':
    case '{':
    case '}':
        scriviAnsi(c);
        break;
    case '~':
        scrivi(u"\u00a0");
        break;
    case '_':
        scrivi(u"\u2011");
        break;
    case '\r':
    case '\n':
        finisciParagrafo();
        break;
    case '*': // a group that not every reader knows
        stato.saltato = true;
        break;
    default:
        break;
    }
}

void Lettura::scrivi(QStringView testo) {
    if (daIgnorare > 0) {
        --daIgnorare;
        return;
    }
    if (stato.saltato || stato.tavola)
        return;
    auto &tratti = paragrafo.tratti;
    const auto stessoAspetto = [this](TrattoRtf ultimo) {
        ultimo.testo.clear();
        return ultimo == stato.aspetto;
    };
    if (tratti.empty() || !stessoAspetto(tratti.back()))
        tratti.push_back(stato.aspetto);
    tratti.back().testo += testo;
}

void Lettura::scriviAnsi(char c) {
    if (!stato.tavola) {
        scrivi(daAnsi(QByteArrayView(&c, 1)));
    } else if (c == ';') {
        colori.push_back(coloreDetto ? std::optional(colore) : std::nullopt);
        coloreDetto = false;
        colore = 0;
    }
}

void Lettura::finisciParagrafo() {
    if (stato.saltato)
        return;
    paragrafi.push_back(paragrafo);
    paragrafo.tratti.clear();
}

void Lettura::scegliColore(int indice) {
    const bool detto = indice >= 0 && std::size_t(indice) < colori.size();
    stato.aspetto.colore = detto ? colori[std::size_t(indice)] : std::nullopt;
}

void Lettura::cambiaColore(int bit, int valore) {
    coloreDetto = true;
    colore |= quint32(std::clamp(valore, 0, 255)) << bit;
}

// Numbers above 32767 come negative.
void Lettura::unicode(int valore) {
    const QChar c(char16_t(valore & 0xffff));
    daIgnorare = 0;
    scrivi(QStringView(&c, 1));
    daIgnorare = stato.dopoUnicode;
}

std::vector<ParagrafoRtf> comeTesto(QByteArrayView byte) {
    std::vector<ParagrafoRtf> paragrafi;
    for (const QString &riga : righeAnsi(byte)) {
        paragrafi.emplace_back();
        if (!riga.isEmpty())
            paragrafi.back().tratti.push_back({riga, false, false, false, 12, std::nullopt});
    }
    return paragrafi;
}

} // namespace

std::vector<ParagrafoRtf> leggiRtf(QByteArrayView byte) {
    if (!byte.startsWith("{\\rtf"))
        return comeTesto(byte);
    Lettura lettura(byte);
    lettura.leggi();
    return std::move(lettura.paragrafi);
}

} // namespace zuvora
