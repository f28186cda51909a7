#include "Simboli.h"

#include <array>

namespace zuvora::disegna {

namespace {

using enum Mano;

constexpr Strato persona[]{{Pieno, 0, u"O 50 27 17"}, {Pieno, 0, u"M 16 92 C 16 64 30 50 50 50 C 70 50 84 64 84 92 Z"}};
constexpr Strato sportello[]{{Pieno, 0, u"O 50 22 14"},
                             {Pieno, 0, u"M 24 62 C 24 46 34 40 50 40 C 66 40 76 46 76 62 Z"},
                             {Pieno, 0, u"R 6 66 88 10 3"},
                             {Pieno, 0, u"R 14 79 72 14 2"}};
constexpr Strato informazioni[]{
    {Pieno, 0, u"O 50 18 11"},
    {Pieno, 0, u"M 34 37 L 60 37 L 60 79 L 69 79 L 69 91 L 32 91 L 32 79 L 42 79 L 42 49 L 34 49 Z"}};
constexpr Strato documento[]{{Pieno, 0, u"M 20 6 L 62 6 L 82 26 L 82 94 L 20 94 Z"},
                             {TaglioTratto, 4, u"M 60 6 L 60 28 L 82 28"},
                             {TaglioTratto, 5, u"M 32 46 L 70 46 M 32 60 L 70 60 M 32 74 L 56 74"}};
constexpr Strato euro[]{{Tratto, 11, u"A 57 50 33 42 276"}, {Tratto, 8, u"M 10 42 L 58 42 M 10 58 L 54 58"}};
constexpr Strato calendario[]{
    {Pieno, 0, u"R 10 16 80 74 8"},
    {Taglio, 0, u"R 17 38 66 45 3"},
    {TaglioTratto, 13, u"M 30 12 L 30 22 M 70 12 L 70 22"},
    {Tratto, 7, u"M 30 9 L 30 22 M 70 9 L 70 22"},
    {Pieno, 0, u"R 25 45 12 11 2 R 44 45 12 11 2 R 63 45 12 11 2 R 25 64 12 11 2 R 44 64 12 11 2"}};
constexpr Strato orologio[]{{Tratto, 8, u"O 50 50 40"}, {Tratto, 7, u"M 50 25 L 50 50 L 67 60"}};
constexpr Strato busta[]{{Pieno, 0, u"R 6 20 88 62 6"}, {TaglioTratto, 5, u"M 10 27 L 50 57 L 90 27"}};
constexpr Strato biglietto[]{
    {Pieno, 0, u"M 20 6 L 80 6 L 80 94 L 70 84 L 60 94 L 50 84 L 40 94 L 30 84 L 20 94 Z"},
    {Taglio, 0, u"R 32 16 36 5 2"},
    {TaglioTratto, 8, u"M 34 38 L 40 33 L 40 60 M 52 37 C 56 30 68 32 66 41 C 65 47 56 52 52 60 L 67 60"},
    {Taglio, 0, u"R 32 70 36 5 2"}};
constexpr Strato carrello[]{{Tratto, 7, u"M 6 14 L 20 14 L 33 66 L 80 66"},
                            {Pieno, 0, u"M 24 24 L 94 24 L 84 56 L 32 56 Z"},
                            {Pieno, 0, u"O 40 83 8.5 O 73 83 8.5"}};
constexpr Strato campana[]{
    {Pieno, 0, u"O 50 11 6"},
    {Pieno, 0, u"M 50 12 C 69 12 76 27 76 45 C 76 62 81 67 88 74 L 12 74 C 19 67 24 62 24 45 C 24 27 31 12 50 12 Z"},
    {Pieno, 0, u"M 37 80 L 63 80 C 62 97 38 97 37 80 Z"}};
constexpr Strato altoparlante[]{{Pieno, 0, u"M 8 37 L 26 37 L 50 17 L 50 83 L 26 63 L 8 63 Z"},
                                {Tratto, 7, u"A 50 50 17 -45 90 A 50 50 34 -45 90"}};
constexpr Strato fumetto[]{{Pieno, 0, u"R 6 12 88 58 15"},
                           {Pieno, 0, u"M 24 60 L 24 93 L 54 66 Z"},
                           {Taglio, 0, u"O 29 41 6 O 50 41 6 O 71 41 6"}};
constexpr Strato wifi[]{{Pieno, 0, u"O 50 80 8"}, {Tratto, 9, u"A 50 80 24 45 90 A 50 80 43 45 90 A 50 80 62 45 90"}};
constexpr Strato uscita[]{{Pieno, 0, u"O 44 15 8.5"},
                          {Tratto, 13, u"M 42 35 L 34 56"},
                          {Tratto, 7, u"M 42 33 L 54 44 L 66 40 M 40 32 L 24 34 L 17 47"},
                          {Tratto, 9, u"M 36 58 L 50 68 L 46 88 M 33 59 L 26 75 L 9 77"},
                          {Tratto, 6, u"M 60 8 L 88 8 L 88 92 L 66 92"}};
constexpr Strato ascensore[]{{Tratto, 7, u"R 12 8 76 84 5"},
                             {Tratto, 4, u"M 50 10 L 50 90"},
                             {Pieno, 0, u"M 31 36 L 42 62 L 20 62 Z M 69 64 L 58 38 L 80 38 Z"}};
constexpr Strato scale[]{{Pieno, 0, u"M 6 92 L 6 76 L 27 76 L 27 60 L 48 60 L 48 44 L 69 44 L 69 28 L 94 28 L 94 92 Z"},
                         {Tratto, 7, u"M 12 50 L 46 18 M 28 16 L 48 16 L 48 36"}};
constexpr Strato bagno[]{{Pieno, 0, u"O 25 16 9.5 O 75 16 9.5"},
                         {Pieno, 0, u"R 12 29 26 33 7 R 15 40 9 54 4 R 26 40 9 54 4"},
                         {Pieno, 0, u"M 68 29 L 82 29 L 94 68 L 56 68 Z R 65 60 9 34 4 R 76 60 9 34 4"},
                         {Pieno, 0, u"R 48.2 8 3.6 86 1.5"}};
constexpr Strato attesa[]{{Pieno, 0, u"O 34 17 10"},
                          {Tratto, 13, u"M 34 38 L 36 58 L 57 58 L 60 84"},
                          {Tratto, 6, u"M 17 40 L 22 72 L 48 72 M 24 74 L 22 93 M 46 74 L 46 93"},
                          {Tratto, 5, u"O 76 24 16 M 76 15 L 76 24 L 82 28"}};
constexpr Strato stellaPriorita[]{
    {Pieno, 0, u"M 50 5 L 63 37 L 97 39 L 71 61 L 79 94 L 50 76 L 21 94 L 29 61 L 3 39 L 37 37 Z"}};
constexpr Strato sigaretta[]{{Pieno, 0, u"R 8 56 58 14 2 R 70 56 6 14 1 R 80 56 6 14 1"},
                             {Tratto, 5, u"M 73 47 C 73 36 60 40 60 27 M 83 47 C 84 30 71 33 71 18"}};
constexpr Strato cellulare[]{{Pieno, 0, u"R 29 5 42 90 8"}, {Taglio, 0, u"R 35 17 30 60 2"}, {Taglio, 0, u"O 50 86 4"}};
constexpr Strato silenzio[]{{Pieno, 0, u"O 50 42 40"},
                            {Taglio, 0, u"O 35 32 5.5 O 65 32 5.5"},
                            {TaglioTratto, 5.5, u"M 30 56 L 70 56"},
                            {Taglio, 0, u"R 38 42 24 50 12 R 22 66 56 40 14"},
                            {Pieno, 0, u"R 43 47 14 44 7 R 27 71 46 27 11"},
                            {TaglioTratto, 3.5, u"M 59 80 L 70 80 M 59 89 L 70 89"}};

constexpr std::array<Simbolo, 23> tabella{{
    {u"persona", persona},
    {u"sportello", sportello},
    {u"informazioni", informazioni},
    {u"documento", documento},
    {u"euro", euro},
    {u"calendario", calendario},
    {u"orologio", orologio},
    {u"busta", busta},
    {u"biglietto", biglietto},
    {u"carrello", carrello},
    {u"campana", campana},
    {u"altoparlante", altoparlante},
    {u"fumetto", fumetto},
    {u"wifi", wifi},
    {u"uscita", uscita},
    {u"ascensore", ascensore},
    {u"scale", scale},
    {u"bagno", bagno},
    {u"attesa", attesa},
    {u"stella", stellaPriorita},
    {u"sigaretta", sigaretta},
    {u"cellulare", cellulare},
    {u"silenzio", silenzio},
}};

} // namespace

std::span<const Simbolo> simboliServizi() {
    return tabella;
}

} // namespace zuvora::disegna
