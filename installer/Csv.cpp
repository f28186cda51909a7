#include "installer/Csv.h"

#include "installer/Guasto.h"

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// Takes one record off the front of `resto`. False when a quote is left open.
bool prendiRiga(QStringView &resto, QStringList &campi) {
    campi.clear();
    QString campo;
    bool traVirgolette = false;
    qsizetype i = 0;
    for (; i < resto.size(); ++i) {
        const QChar c = resto[i];
        if (traVirgolette) {
            if (c != u'"') {
                campo += c;
            } else if (i + 1 < resto.size() && resto[i + 1] == u'"') {
                campo += c;
                ++i;
            } else {
                traVirgolette = false;
            }
        } else if (c == u'"') {
            traVirgolette = true;
            if (campo.isNull())
                campo = u""_s;
        } else if (c == u',') {
            campi += campo;
            campo = QString();
        } else if (c == u'\n') {
            break;
        } else if (c != u'\r') {
            campo += c;
        }
    }
    campi += campo;
    resto = resto.mid(i + 1);
    return !traVirgolette;
}
} // namespace

Csv leggiCsv(const QByteArray &testo, const QString &nome) {
    const QString tutto = QString::fromUtf8(testo);
    QStringView resto = tutto;
    Csv csv;
    QStringList campi;
    for (int riga = 1; !resto.isEmpty(); ++riga) {
        const bool chiusa = prendiRiga(resto, campi);
        if (!chiusa || (riga > 1 && campi.size() != csv.colonne.size()))
            throw Guasto{u"I dati di partenza %1 hanno un errore alla riga %2."_s.arg(nome).arg(riga)};
        if (riga == 1)
            csv.colonne = campi;
        else
            csv.righe += campi;
    }
    return csv;
}

} // namespace zuvora::installa
