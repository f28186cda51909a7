#include "designer/logic/Trascinamento.h"

#include <algorithm>
#include <utility>

namespace zuvora {

namespace {

// An element's place, seen as a control of the form.
class Sagoma final : public ControlloRect {
public:
    Sagoma(const Area &a, const GeometriaForm &form) : area(a), m_form(form) {}

    double Left() const override { return area.left; }
    double Top() const override { return area.top; }
    double Width() const override { return area.width; }
    double Height() const override { return area.height; }
    void Move(double left, double top, double width, double height) override { area = {left, top, width, height}; }
    QPoint OrigineGenitore() const override { return m_form.origine; }
    double TwipsPerPixelX() const override { return m_form.twipsPerPixel; }

    Area area;

private:
    const GeometriaForm &m_form;
};

QPoint entro(QPoint cursore, const QRect &limiti) {
    if (limiti.isEmpty())
        return cursore;
    return {std::clamp(cursore.x(), limiti.left(), limiti.right()),
            std::clamp(cursore.y(), limiti.top(), limiti.bottom())};
}

// The sides on which a target counts as out of bounds: above or below the form, or left or right of it.
struct Regola {
    bool verticale;
    bool orizzontale;
};

constexpr Regola regola(int bersaglio) {
    if (bersaglio == bersaglioStrumenti)
        return {true, true};
    return bersaglio == 0 ? Regola{true, false} : Regola{false, true};
}

} // namespace

bool Trascinamento::prendi(Stato stato, QPoint cursore) {
    if (m_stato != Stato::Fermo)
        return false;
    m_stato = stato;
    m_presa = cursore;
    return true;
}

void Trascinamento::prendiRettangolo(const DisplayLayout &layout, const GeometriaForm &form) {
    const Sagoma sagoma(layout[m_elemento].area, form);
    m_rettangolo.SetRectToCtrl(sagoma);
    m_prima = m_rettangolo;
    m_rettangolo.TwipsToScreen(sagoma);
    MostraManiglie(false);
}

bool Trascinamento::InizioTrascinamento(const DisplayLayout &layout, int posto, QPoint cursore,
                                        const GeometriaForm &form) {
    if (posto < 0 || posto >= righeLayout || !staSullaTela(layout[posto].tipo) || !prendi(Stato::Spostamento, cursore))
        return false;
    m_elemento = posto;
    prendiRettangolo(layout, form);
    m_presa -= QPoint(m_rettangolo.left(), m_rettangolo.top());
    return true;
}

bool Trascinamento::InizioRidimensionamento(const DisplayLayout &layout, int maniglia, const GeometriaForm &form) {
    if (m_elemento < 0 || maniglia < 0 || maniglia >= numeroManiglie || !prendi(Stato::Ridimensionamento, {}))
        return false;
    m_maniglia = maniglia;
    prendiRettangolo(layout, form);
    return true;
}

bool Trascinamento::prendiPannello(const DisplayLayout &layout, int pannello, QPoint cursore) {
    if (!prendi(Stato::Pannello, cursore))
        return false;
    const Area &area = layout.elemento(TipoElemento::Pannello1, pannello).area;
    m_pannello = pannello;
    m_inizio = m_vivo = {area.left, area.top};
    return true;
}

bool Trascinamento::prendiStrumenti(PuntoTwips inizio, QPoint cursore) {
    if (!prendi(Stato::Strumenti, cursore))
        return false;
    m_inizio = m_vivo = inizio;
    return true;
}

bool Trascinamento::prendiFinestra(QPoint inizio, QPoint cursore) {
    if (!prendi(Stato::Finestra, cursore))
        return false;
    m_inizioFinestra = m_finestra = inizio;
    return true;
}

bool Trascinamento::MouseMove(DisplayLayout &layout, QPoint cursore, const GeometriaForm &form) {
    switch (m_stato) {
    case Stato::Fermo:
        return false;
    case Stato::Spostamento:
    case Stato::Ridimensionamento:
        return muoviContorno(entro(cursore, form.esterno));
    case Stato::Pannello: {
        const bool mosso = muoviVivo(cursore, form.twipsPerPixel);
        Area &area = layout.elemento(TipoElemento::Pannello1, m_pannello).area;
        area.left = m_vivo.left;
        area.top = m_vivo.top;
        return mosso;
    }
    case Stato::Strumenti:
        return muoviVivo(cursore, form.twipsPerPixel);
    case Stato::Finestra:
        m_finestra = m_inizioFinestra + cursore - m_presa;
        return true;
    }
    return false;
}

bool Trascinamento::muoviContorno(QPoint cursore) {
    const CRect prima = m_rettangolo;
    if (m_stato == Stato::Spostamento) {
        const int larghezza = m_rettangolo.Width();
        const int altezza = m_rettangolo.Height();
        m_rettangolo.setLeft(cursore.x() - m_presa.x());
        m_rettangolo.setTop(cursore.y() - m_presa.y());
        m_rettangolo.setWidth(larghezza);
        m_rettangolo.setHeight(altezza);
        return m_rettangolo != prima;
    }
    const Maniglia &m = maniglie()[static_cast<std::size_t>(m_maniglia)];
    if (m.sinistra)
        m_rettangolo.setLeft(cursore.x());
    if (m.destra)
        m_rettangolo.setRight(cursore.x());
    if (m.alto)
        m_rettangolo.setTop(cursore.y());
    if (m.basso)
        m_rettangolo.setBottom(cursore.y());
    return m_rettangolo != prima;
}

bool Trascinamento::muoviVivo(QPoint cursore, double twipsPerPixel) {
    const QPoint distanza = cursore - m_presa;
    const PuntoTwips prima = std::exchange(
        m_vivo, {m_inizio.left + distanza.x() * twipsPerPixel, m_inizio.top + distanza.y() * twipsPerPixel});
    return m_vivo != prima;
}

bool Trascinamento::MouseUp(DisplayLayout &layout, Qt::MouseButton bottone, const GeometriaForm &form) {
    if (!inContorno() || bottone != Qt::LeftButton)
        return false;
    Sagoma sagoma(layout[m_elemento].area, form);
    m_rettangolo.ScreenToTwips(sagoma);
    m_rettangolo.SetCtrlToRect(sagoma);
    layout[m_elemento].area = sagoma.area;
    MostraManiglie(true);
    m_stato = Stato::Fermo;
    return true;
}

void Trascinamento::lascia() {
    if (!inContorno())
        m_stato = Stato::Fermo;
}

void Trascinamento::interrompi() {
    if (!inContorno())
        return;
    m_rettangolo = m_prima;
    m_stato = Stato::Fermo;
}

void Trascinamento::MostraManiglie(bool mostra) {
    m_maniglieVisibili = mostra && m_elemento >= 0;
}

std::array<PostoManiglia, numeroManiglie> Trascinamento::posti(double twipsPerPixel) const {
    return postiManiglie(m_rettangolo, twipsPerPixel);
}

PuntoTwips postoDopoRilascio(int bersaglio, PuntoTwips posto, Dimensione form) {
    const Regola r = regola(bersaglio);
    const bool fuori = (r.verticale && (posto.top < 0 || posto.top > form.height)) ||
                       (r.orizzontale && (posto.left < 0 || posto.left > form.width));
    return fuori ? PuntoTwips{} : posto;
}

bool rilasciaPannello(DisplayLayout &layout, int etichetta, Dimensione form) {
    if (layout.eBase())
        return false;
    const int pannello = etichetta / 3;
    Area &area = layout.elemento(TipoElemento::Pannello1, pannello).area;
    const PuntoTwips prima{area.left, area.top};
    const PuntoTwips dopo = postoDopoRilascio(pannello, prima, form);
    area.left = dopo.left;
    area.top = dopo.top;
    return dopo != prima;
}

} // namespace zuvora
