#include "calling/logic/Frase.h"

#include "shell/logic/TestoAnsi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QChar doppioApice = u'"';
constexpr int massimoSostituzioni = 10;

QString conSoliLF(QString testo) {
    return testo.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::LineSeparator, u'\n');
}

// The text field: in quotes up to the next one, else up to the comma. Leaves `resto` behind its comma.
QString primoCampo(QStringView &resto) {
    resto = resto.trimmed();
    const bool traVirgolette = resto.startsWith(doppioApice);
    if (traVirgolette)
        resto = resto.sliced(1);
    qsizetype fine = resto.indexOf(traVirgolette ? doppioApice : QChar(u','));
    if (fine < 0)
        fine = resto.size();
    QString campo = resto.first(fine).toString();
    const qsizetype virgola = resto.indexOf(u',', fine);
    resto = virgola < 0 ? QStringView() : resto.sliced(virgola + 1);
    return campo;
}

// A further field ends with a comma or with its line.
std::optional<int> campoNumero(QStringView &resto) {
    qsizetype fine = 0;
    while (fine < resto.size() && resto[fine] != u',' && resto[fine] != u'\n')
        ++fine;
    const QStringView campo = resto.first(fine).trimmed();
    resto = fine < resto.size() ? resto.sliced(fine + 1) : QStringView();
    if (campo == u"0")
        return 0;
    if (campo == u"1")
        return 1;
    return std::nullopt;
}

bool diParola(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

bool parolaIntera(const QString &testo, qsizetype posto, qsizetype lunghezza) {
    const qsizetype dopo = posto + lunghezza;
    return (posto == 0 || !diParola(testo[posto - 1])) && (dopo == testo.size() || !diParola(testo[dopo]));
}

// The first whole word from `da` on; -1 without one.
qsizetype cerca(const QString &testo, QStringView segno, qsizetype da) {
    qsizetype posto = testo.indexOf(segno, da, Qt::CaseInsensitive);
    while (posto >= 0 && !parolaIntera(testo, posto, segno.size()))
        posto = testo.indexOf(segno, posto + 1, Qt::CaseInsensitive);
    return posto;
}

} // namespace

FraseTTS interpretaFrase(QByteArrayView byte) {
    const QString testo = conSoliLF(daAnsi(byte));
    QStringView resto(testo);
    FraseTTS letta;
    letta.frase = primoCampo(resto);
    letta.usa = campoNumero(resto);
    letta.femminile = campoNumero(resto);
    letta.sistema = campoNumero(resto);
    return letta;
}

QString motivoNonSalvabile(const QString &frase) {
    if (frase.contains(doppioApice))
        return u"La frase non può contenere le virgolette \"."_s;
    if (const QString estraneo = fuoriAnsi(conSoliLF(frase)); !estraneo.isEmpty())
        return u"La frase non può contenere il carattere \"%1\"."_s.arg(estraneo);
    return {};
}

std::optional<QByteArray> componiFrase(const FraseTTS &frase) {
    if (frase.frase.contains(doppioApice))
        return std::nullopt;
    const QString record = u"\"%1\",%2,%3,%4\r\n"_s;
    return inAnsi(record.arg(conSoliLF(frase.frase).replace(u"\n"_s, u"\r\n"_s), QString::number(frase.usa.value_or(0)),
                             QString::number(frase.femminile.value_or(0)), QString::number(frase.sistema.value_or(0))));
}

QString testoVariabile(int indice, bool inSelezione) {
    const QString conSpazio = variabili.at(std::size_t(indice)).segno.toString() + u' ';
    return inSelezione ? u' ' + conSpazio : conSpazio;
}

QString EspandiFrase(const QString &frase, const std::function<void()> &pausa) {
    QString testo = frase;
    for (const Variabile &variabile : variabili) {
        qsizetype da = 0;
        for (int volta = 0; volta < massimoSostituzioni; ++volta) {
            const qsizetype posto = cerca(testo, variabile.segno, da);
            if (posto < 0)
                break;
            if (pausa)
                pausa();
            testo.replace(posto, variabile.segno.size(), variabile.prova.toString());
            da = posto + 1;
        }
    }
    return testo;
}

} // namespace zuvora
