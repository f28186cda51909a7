#include "etichette/logic/Valori.h"

#include <QLocale>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QLocale &italiano() {
    static const QLocale locale(QLocale::Italian, QLocale::Italy);
    return locale;
}

// Whole days since 30 December 1899, and a fraction for the time, to the second.
QDateTime dataDaGiorni(double giorni) {
    const double interi = std::floor(giorni);
    const auto secondi = static_cast<qint64>(std::llround((giorni - interi) * 86400));
    return QDateTime(giornoZero().addDays(static_cast<qint64>(interi)), QTime(0, 0)).addSecs(secondi);
}

// A number in a pattern of zeros: those before the comma are the least digits, those behind it the decimals.
QString numeroIn(double numero, QStringView formato) {
    const qsizetype virgola = formato.indexOf(u',');
    const qsizetype interi = virgola < 0 ? formato.size() : virgola;
    const int decimali = virgola < 0 ? 0 : static_cast<int>(std::min<qsizetype>(formato.size() - virgola - 1, 12));
    QString cifre = QString::number(std::abs(numero), 'f', decimali);
    cifre.replace(u'.', u',');
    const qsizetype davanti = cifre.indexOf(u',') < 0 ? cifre.size() : cifre.indexOf(u',');
    cifre.prepend(QString(std::max<qsizetype>(0, std::min<qsizetype>(interi, 30) - davanti), u'0'));
    return numero < 0 ? u'-' + cifre : cifre;
}

bool eFormatoNumero(QStringView formato) {
    return !formato.isEmpty() &&
           std::all_of(formato.begin(), formato.end(), [](QChar c) { return c == u'0' || c == u','; }) &&
           formato.count(u',') <= 1;
}

QString nelFormato(const Variabile &v, QStringView formato) {
    if (formato.isEmpty())
        return v.testo;
    if (v.vero) {
        const qsizetype barra = formato.indexOf(u'|');
        return (barra < 0 ? (*v.vero ? formato : QStringView())
                : *v.vero ? formato.left(barra)
                          : formato.mid(barra + 1))
            .toString();
    }
    if (v.numero && eFormatoNumero(formato))
        return numeroIn(*v.numero, formato);
    if (v.data)
        return italiano().toString(*v.data, formato.toString());
    return v.testo;
}

// Walks a text with braces: `semplice` gets each piece of plain text, `nome` each variable with its format.
template <class Semplice, class Nome> void percorri(QStringView testo, Semplice semplice, Nome nome) {
    for (qsizetype i = 0; i < testo.size();) {
        const QChar c = testo[i];
        if ((c == u'{' || c == u'}') && i + 1 < testo.size() && testo[i + 1] == c) {
            semplice(testo.mid(i, 1));
            i += 2;
            continue;
        }
        const qsizetype fine = c == u'{' ? testo.indexOf(u'}', i) : -1;
        if (fine < 0) {
            semplice(testo.mid(i, 1));
            ++i;
            continue;
        }
        const QStringView dentro = testo.mid(i + 1, fine - i - 1);
        const qsizetype due = dentro.indexOf(u':');
        nome((due < 0 ? dentro : dentro.left(due)).trimmed(), due < 0 ? QStringView() : dentro.mid(due + 1));
        i = fine + 1;
    }
}

} // namespace

QString testoData(const QDateTime &data) {
    return data.toString(data.date() == giornoZero()  ? u"HH:mm"_s
                         : data.time() == QTime(0, 0) ? u"dd/MM/yyyy"_s
                                                      : u"dd/MM/yyyy HH:mm"_s);
}

Variabile variabileDaContenuto(const QString &nome, const QString &contenuto, TipoEtichetta tipo) {
    Variabile v{nome, tipo, contenuto, {}, {}, {}};
    bool riuscito = false;
    const double numero = contenuto.toDouble(&riuscito);
    riuscito = riuscito && std::isfinite(numero);
    if (tipo == TipoEtichetta::Numero && riuscito) {
        v.numero = numero;
        v.testo.replace(u'.', u',');
    } else if (tipo == TipoEtichetta::Data && riuscito && std::abs(numero) < 3e6) {
        v.data = dataDaGiorni(numero);
        v.testo = testoData(*v.data);
    } else if (tipo == TipoEtichetta::Logico && !contenuto.isEmpty()) {
        v.vero = contenuto.compare("True"_L1, Qt::CaseInsensitive) == 0;
        v.testo = *v.vero ? u"Sì"_s : u"No"_s;
    }
    return v;
}

const Variabile *Valori::trova(QStringView nome) const {
    for (const Variabile &v : m_variabili)
        if (nome.compare(v.nome, Qt::CaseInsensitive) == 0)
            return &v;
    return nullptr;
}

void Valori::metti(const Variabile &variabile) {
    for (Variabile &v : m_variabili)
        if (v.nome.compare(variabile.nome, Qt::CaseInsensitive) == 0) {
            v = variabile;
            return;
        }
    m_variabili << variabile;
}

QString Valori::componi(QStringView testo, QStringList *mancanti) const {
    QString composto;
    percorri(
        testo, [&](QStringView semplice) { composto += semplice; },
        [&](QStringView nome, QStringView formato) {
            if (const Variabile *v = trova(nome))
                composto += nelFormato(*v, formato);
            else if (mancanti == nullptr)
                composto += u'{' + nome.toString() + u'}';
            else if (!mancanti->contains(nome))
                *mancanti << nome.toString();
        });
    return composto;
}

QStringList nomiIn(QStringView testo) {
    QStringList nomi;
    percorri(
        testo, [](QStringView) {},
        [&](QStringView nome, QStringView) {
            if (!nomi.contains(nome, Qt::CaseInsensitive))
                nomi << nome.toString();
        });
    return nomi;
}

} // namespace zuvora
