#include "Simboli.h"

#include <array>

namespace zuvora::disegna {

namespace {

using enum Mano;

constexpr Strato croce[]{{Pieno, 0, u"R 34 6 32 88 6 R 6 34 88 32 6"}};
constexpr Strato croceFarmacia[]{
    {Pieno, 0, u"R 31 2 38 96 3 R 2 31 96 38 3"},
    {TaglioTratto, 5,
     u"M 41 12 L 59 12 L 59 41 L 88 41 L 88 59 L 59 59 L 59 88 L 41 88 L 41 59 L 12 59 L 12 41 L 41 41 Z"}};
constexpr Strato carrozzina[]{{Pieno, 0, u"O 38 12 9"},
                              {Tratto, 10, u"M 39 29 L 42 54 L 65 54 L 77 82 L 87 78"},
                              {Tratto, 7, u"M 42 39 L 63 39"},
                              {Tratto, 8, u"M 29 49 C 17 56 14 72 24 83 C 36 96 60 91 64 71"}};
constexpr Strato incinta[]{{Pieno, 0, u"O 46 13 10"},
                           {Pieno, 0,
                            u"M 38 28 C 48 24 55 30 56 39 C 69 43 73 56 65 64 C 61 68 60 71 60 75 L 60 92 C 60 97 52 "
                            u"97 52 92 L 50 74 L 48 92 C 48 97 "
                            u"38 97 38 92 L 38 66 C 31 54 31 34 38 28 Z"},
                           {TaglioTratto, 4, u"M 42 38 L 44 51 L 56 55"}};
constexpr Strato anziano[]{{Pieno, 0, u"O 44 14 10"},
                           {Tratto, 14, u"M 41 33 C 35 40 34 48 36 58"},
                           {Tratto, 9, u"M 36 60 L 29 91 M 39 60 L 51 73 L 49 91"},
                           {Tratto, 7, u"M 43 36 L 54 52 L 66 50"},
                           {Tratto, 5, u"M 62 50 C 62 42 72 42 72 50 L 72 93"}};
constexpr Strato bambino[]{{Pieno, 0, u"O 50 52 38 O 11 55 8 O 89 55 8"},
                           {TaglioTratto, 5, u"M 50 14 C 62 18 60 30 50 28"},
                           {Tratto, 5, u"M 50 14 C 46 8 52 4 56 7"},
                           {Taglio, 0, u"O 36 50 5 O 64 50 5"},
                           {TaglioTratto, 5, u"A 50 57 17 205 130"}};
constexpr Strato cuore[]{
    {Pieno, 0, u"M 50 92 C 14 63 4 46 6 30 C 9 9 37 5 50 27 C 63 5 91 9 94 30 C 96 46 86 63 50 92 Z"}};
constexpr Strato battito[]{
    {Pieno, 0, u"M 50 92 C 14 63 4 46 6 30 C 9 9 37 5 50 27 C 63 5 91 9 94 30 C 96 46 86 63 50 92 Z"},
    {TaglioTratto, 5, u"M 4 50 L 34 50 L 42 36 L 53 65 L 61 50 L 96 50"}};
constexpr Strato goccia[]{
    {Pieno, 0, u"M 50 4 C 62 26 82 44 82 65 C 82 83 67 96 50 96 C 33 96 18 83 18 65 C 18 44 38 26 50 4 Z"},
    {TaglioTratto, 6, u"A 50 65 20 185 75"}};
constexpr Strato dente[]{{Pieno, 0,
                          u"M 50 21 C 40 11 20 7 14 25 C 10 40 19 50 23 63 C 26 77 27 95 36 95 C 45 95 42 66 50 66 C "
                          u"58 66 55 95 64 95 C 73 95 74 77 "
                          u"77 63 C 81 50 90 40 86 25 C 80 7 60 11 50 21 Z"},
                         {TaglioTratto, 4, u"M 27 27 C 27 21 33 19 38 21"}};
constexpr Strato occhio[]{{Pieno, 0, u"M 3 50 C 24 16 76 16 97 50 C 76 84 24 84 3 50 Z"},
                          {Taglio, 0, u"O 50 50 22"},
                          {Pieno, 0, u"O 50 50 14"},
                          {Taglio, 0, u"O 56 44 5"}};
constexpr Strato provetta[]{{Pieno, 0, u"R 20 6 28 10 3 R 23 8 22 86 11 R 56 6 28 10 3 R 59 8 22 86 11"},
                            {Taglio, 0, u"R 28 20 12 26 1 R 64 20 12 40 1"}};
constexpr Strato siringa[]{{Tratto, 6, u"M 74 10 L 90 26 M 82 18 L 70 30"},
                           {Tratto, 6, u"M 54 22 L 78 46"},
                           {Pieno, 0, u"M 54 28 L 72 46 L 40 78 L 26 80 L 20 74 L 22 60 Z"},
                           {TaglioTratto, 4, u"M 47 44 L 55 52 M 38 53 L 46 61"},
                           {Tratto, 4, u"M 22 78 L 8 92"}};
constexpr Strato stetoscopio[]{{Tratto, 7, u"M 22 10 L 14 10 L 14 34 C 14 62 56 62 56 34 L 56 10 L 48 10"},
                               {Tratto, 7, u"M 35 56 L 35 66 C 35 96 78 96 78 66 L 78 56"},
                               {Tratto, 7, u"O 78 44 10"}};
constexpr Strato lastra[]{{Pieno, 0, u"R 12 2 76 96 8"},
                          {TaglioTratto, 7, u"M 50 14 L 50 86"},
                          {TaglioTratto, 5,
                           u"M 50 26 C 36 20 26 28 26 40 M 50 26 C 64 20 74 28 74 40 M 50 44 C 36 38 26 46 26 58 M 50 "
                           u"44 C 64 38 74 46 74 58 M 50 62 C "
                           u"38 57 30 63 30 74 M 50 62 C 62 57 70 63 70 74"}};
constexpr Strato pillola[]{
    {Tratto, 30, u"M 32 68 L 68 32"}, {TaglioTratto, 4, u"M 36 36 L 64 64"}, {TaglioTratto, 5, u"M 60 28 L 66 24"}};

constexpr std::array<Simbolo, 16> tabella{{
    {u"croce_farmacia", croceFarmacia},
    {u"croce", croce},
    {u"carrozzina", carrozzina},
    {u"incinta", incinta},
    {u"anziano", anziano},
    {u"bambino", bambino},
    {u"cuore", cuore},
    {u"battito", battito},
    {u"goccia", goccia},
    {u"dente", dente},
    {u"occhio", occhio},
    {u"provetta", provetta},
    {u"siringa", siringa},
    {u"stetoscopio", stetoscopio},
    {u"lastra", lastra},
    {u"pillola", pillola},
}};

} // namespace

std::span<const Simbolo> simboliSalute() {
    return tabella;
}

} // namespace zuvora::disegna
