#include "installer/ControlloValori.h"

#include <array>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
struct Campo {
    QLatin1StringView tabella;
    QLatin1StringView colonna;
    QStringView ammessi; // as SQL
    QStringView detti;   // for the user
};
constexpr std::array campi{
    Campo{"Configurazione"_L1, "MisuraFormWH"_L1, u"1, 2, 3, 4", u"da 1 a 4"},
    Campo{"Configurazione"_L1, "qualelayout"_L1, u"1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 99", u"da 1 a 10, o 99"},
    Campo{"ConfigurazioneTotem"_L1, "RisoluzioneTotem"_L1, u"0, 1, 2, 3", u"da 0 a 3"},
};
} // namespace

void controllaValori(ControlloArchivio &zuvora) {
    for (const Campo &c : campi) {
        if (!zuvora.ha(c.tabella, c.colonna))
            continue;
        zuvora.controlla([&](Database &db) {
            const QString domanda =
                u"SELECT [%1] FROM [%2] WHERE [%1] NOT IN (%3)"_s.arg(c.colonna, c.tabella, c.ammessi);
            for (const QStringList &riga : db.leggiTesti(domanda))
                zuvora.segnala(u"tabella %1: %2 vale %3 invece di un numero %4"_s.arg(c.tabella, c.colonna,
                                                                                      riga.first(), c.detti));
        });
    }
}

} // namespace zuvora::installa
