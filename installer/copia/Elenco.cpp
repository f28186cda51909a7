#include "installer/copia/Elenco.h"

#include "installer/Guasto.h"

#include <QStringList>
#include <array>
#include <utility>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto intestazione = "zuvora-copia "_L1;
constexpr int formato = 1;
constexpr qsizetype cifreImpronta = 64;

struct Campo {
    QLatin1StringView nome;
    QString Elenco::*membro;
};
constexpr std::array campi{Campo{"versione"_L1, &Elenco::versione}, Campo{"cartella"_L1, &Elenco::cartella},
                           Campo{"totem"_L1, &Elenco::totem}, Campo{"macchina"_L1, &Elenco::macchina},
                           Campo{"quando"_L1, &Elenco::quando}};

[[noreturn]] void danneggiato() {
    throw Guasto{u"La copia è danneggiata: il suo elenco non si può leggere."_s};
}

VoceCopia voceDa(const QString &riga) {
    const QStringList parti{riga.section(u' ', 0, 0), riga.section(u' ', 1, 1), riga.section(u' ', 2)};
    bool numero = false;
    VoceCopia voce{parti[2], parti[1].toLongLong(&numero), parti[0].toLatin1()};
    if (!numero || voce.byte < 0 || voce.impronta.size() != cifreImpronta || !nomeAmmesso(voce.nome))
        danneggiato();
    return voce;
}
} // namespace

bool nomeAmmesso(const QString &nome) {
    if (nome.isEmpty() || nome.size() > 1024 || nome.startsWith(u'/') || nome.contains(u'\\') || nome.contains(u'\n') ||
        nome.contains(QChar(0)) || (nome.size() > 1 && nome[1] == u':'))
        return false;
    const QStringList parti = nome.split(u'/');
    return !parti.contains(u""_s) && !parti.contains(u"."_s) && !parti.contains(u".."_s);
}

QByteArray scriviElenco(const Elenco &elenco) {
    QString testo = u"%1%2\n"_s.arg(intestazione).arg(formato);
    for (const Campo &campo : campi)
        testo += u"%1 %2\n"_s.arg(campo.nome, elenco.*campo.membro);
    for (const VoceCopia &voce : elenco.voci)
        testo += u"%1 %2 %3\n"_s.arg(QString::fromLatin1(voce.impronta), QString::number(voce.byte), voce.nome);
    return testo.toUtf8();
}

Elenco leggiElenco(const QByteArray &testo) {
    QStringList righe = QString::fromUtf8(testo).split(u'\n');
    const QString prima = righe.takeFirst();
    if (!prima.startsWith(intestazione) || righe.isEmpty() || !righe.takeLast().isEmpty())
        danneggiato();
    if (prima.mid(intestazione.size()).toInt() > formato)
        throw Guasto{u"La copia è stata fatta da una versione più recente di questo programma: usare quella."_s};
    Elenco elenco;
    for (const Campo &campo : campi) {
        if (righe.isEmpty() || !righe.first().startsWith(campo.nome + u' '))
            danneggiato();
        elenco.*campo.membro = righe.takeFirst().mid(campo.nome.size() + 1);
    }
    for (const QString &riga : std::as_const(righe))
        elenco.voci += voceDa(riga);
    return elenco;
}

} // namespace zuvora::installa
