// The banner styles, empty: captions and symbols are laid on afterwards.
#pragma once

#include "Pennello.h"

namespace zuvora::disegna {

inline constexpr QSize misuraBanner{1200, 200};
inline constexpr QSize misuraBarra{200, 900};

void fascia(QPainter &p, const Tono &t);
void onda(QPainter &p, const Tono &t);
void linguetta(QPainter &p, const Tono &t);
void obliqua(QPainter &p, const Tono &t);
void aFreccia(QPainter &p, const Tono &t);
void fasciaVetro(QPainter &p, const Tono &t);
void divisorio(QPainter &p, const Tono &t);
void nastro(QPainter &p, const Tono &t);
void etichetta(QPainter &p, const Tono &t);
void barraLaterale(QPainter &p, const Tono &t);

} // namespace zuvora::disegna
