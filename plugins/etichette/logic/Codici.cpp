#include "etichette/logic/Codici.h"

#include <memory>
#include <zint.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int eciUtf8 = 26;

struct Regola {
    Simbologia simbologia;
    const char *nome;
    int zint;
    int margine; // modules
};
constexpr Regola regole[] = {{Simbologia::Code128, "Code 128", BARCODE_CODE128, 10},
                             {Simbologia::Code39, "Code 39", BARCODE_CODE39, 10},
                             {Simbologia::Ean13, "EAN-13", BARCODE_EANX, 11},
                             {Simbologia::Itf, "ITF (2 di 5 interleaved)", BARCODE_C25INTER, 10},
                             {Simbologia::Qr, "QR Code", BARCODE_QRCODE, 4},
                             {Simbologia::DataMatrix, "Data Matrix", BARCODE_DATAMATRIX, 1}};

const Regola &regolaDi(Simbologia simbologia) {
    for (const Regola &r : regole)
        if (r.simbologia == simbologia)
            return r;
    return regole[0];
}

bool soloCifre(const QString &testo) {
    return std::all_of(testo.begin(), testo.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QChar cifraDiControllo(const QString &dodici) {
    int somma = 0;
    for (int i = 0; i < 12; ++i)
        somma += dodici[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return QChar(u'0' + (10 - somma % 10) % 10);
}

QString erroreEan(const QString &contenuto) {
    if (!soloCifre(contenuto) || contenuto.size() < 12 || contenuto.size() > 13)
        return u"Il codice EAN-13 vuole 12 o 13 cifre."_s;
    if (contenuto.size() == 13 && contenuto[12] != cifraDiControllo(contenuto))
        return u"L'ultima cifra del codice EAN-13 dovrebbe essere %1."_s.arg(cifraDiControllo(contenuto));
    return {};
}

// What the rules of the code say against the contents, before anything is made.
QString erroreContenuto(Simbologia simbologia, const QString &contenuto) {
    if (contenuto.isEmpty())
        return u"Il codice non ha contenuto."_s;
    switch (simbologia) {
    case Simbologia::Ean13:
        return erroreEan(contenuto);
    case Simbologia::Itf:
        if (!soloCifre(contenuto) || contenuto.size() % 2 != 0)
            return u"Il codice ITF vuole solo cifre, in numero pari."_s;
        break;
    case Simbologia::Code39: {
        const QString ammessi = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-. $/+%"_s;
        for (const QChar c : contenuto)
            if (!ammessi.contains(c))
                return u"Il carattere «%1» non si può scrivere in un codice Code 39: solo lettere maiuscole, cifre, "
                       "spazio e - . $ / + %."_s.arg(c);
        break;
    }
    case Simbologia::Code128:
        for (const QChar c : contenuto)
            if (c.unicode() > 0xff)
                return u"Il carattere «%1» non si può scrivere in un codice Code 128."_s.arg(c);
        break;
    case Simbologia::Qr:
    case Simbologia::DataMatrix:
        break;
    }
    return {};
}

struct LiberaSimbolo {
    void operator()(zint_symbol *s) const { ZBarcode_Delete(s); }
};

Codice moduliDi(const zint_symbol &s, int margine) {
    Codice codice;
    // The European code comes with a row for its longer guard bars; bars of one height serve as well.
    codice.righe = s.symbology == BARCODE_QRCODE || s.symbology == BARCODE_DATAMATRIX ? s.rows : 1;
    codice.colonne = s.width;
    codice.margine = margine;
    codice.scuri.resize(qsizetype(codice.colonne) * codice.righe);
    for (int r = 0; r < codice.righe; ++r)
        for (int c = 0; c < codice.colonne; ++c)
            if ((s.encoded_data[r][c >> 3] >> (c & 7) & 1) != 0)
                codice.scuri.setBit(r * codice.colonne + c);
    return codice;
}

} // namespace

Codice codifica(Simbologia simbologia, const QString &contenuto) {
    Codice codice;
    codice.errore = erroreContenuto(simbologia, contenuto);
    if (!codice.errore.isEmpty())
        return codice;
    const Regola &regola = regolaDi(simbologia);
    const std::unique_ptr<zint_symbol, LiberaSimbolo> simbolo(ZBarcode_Create());
    if (!simbolo)
        throw std::bad_alloc();
    simbolo->symbology = regola.zint;
    simbolo->input_mode = UNICODE_MODE;
    const bool ascii = std::all_of(contenuto.begin(), contenuto.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii && simbologia != Simbologia::Code128)
        simbolo->eci = eciUtf8; // what telephones read without being asked
    if (simbologia == Simbologia::DataMatrix)
        simbolo->option_3 = DM_SQUARE;
    const QByteArray byte = contenuto.toUtf8();
    const int esito = ZBarcode_Encode(simbolo.get(), reinterpret_cast<const unsigned char *>(byte.constData()),
                                      static_cast<int>(byte.size()));
    if (esito >= ZINT_ERROR) {
        codice.errore =
            esito == ZINT_ERROR_TOO_LONG
                ? u"Il contenuto è troppo lungo per un codice %1."_s.arg(QString::fromLatin1(regola.nome))
                : u"Il contenuto non si può scrivere in un codice %1."_s.arg(QString::fromLatin1(regola.nome));
        return codice;
    }
    return moduliDi(*simbolo, regola.margine);
}

QString nomeSimbologia(Simbologia simbologia) {
    return QString::fromLatin1(regolaDi(simbologia).nome);
}

} // namespace zuvora
