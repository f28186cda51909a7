#include "designer/logic/Trascinamento.h"

#include <algorithm>

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
    double TwipsPerPixelX() const override { return m_form.twipsPerPixelX; }

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

} // namespace

void Trascinamento::prendiRettangolo(const DisplayLayout &layout, const GeometriaForm &form) {
    const Sagoma sagoma(layout[m_elemento].area, form);
    m_rettangolo.SetRectToCtrl(sagoma);
    m_prima = m_rettangolo;
    m_rettangolo.TwipsToScreen(sagoma);
}

bool Trascinamento::InizioTrascinamento(const DisplayLayout &layout, int posto, QPoint cursore,
                                        const GeometriaForm &form) {
    if (inCorso() || posto < 0 || posto >= righeLayout || !staSullaTela(layout[posto].tipo))
        return false;
    MostraManiglie(false);
    m_elemento = posto;
    prendiRettangolo(layout, form);
    m_presa = cursore - QPoint(m_rettangolo.left(), m_rettangolo.top());
    m_stato = Stato::Spostamento;
    return true;
}

bool Trascinamento::InizioRidimensionamento(const DisplayLayout &layout, int maniglia, const GeometriaForm &form) {
    if (inCorso() || m_elemento < 0 || maniglia < 0 || maniglia >= numeroManiglie)
        return false;
    prendiRettangolo(layout, form);
    m_maniglia = maniglia;
    MostraManiglie(false);
    m_stato = Stato::Ridimensionamento;
    return true;
}

bool Trascinamento::MouseMove(QPoint cursore, const GeometriaForm &form) {
    if (!inCorso())
        return false;
    const CRect prima = m_rettangolo;
    const QPoint p = entro(cursore, form.esterno);
    if (m_stato == Stato::Spostamento) {
        const int larghezza = m_rettangolo.Width();
        const int altezza = m_rettangolo.Height();
        m_rettangolo.left(p.x() - m_presa.x());
        m_rettangolo.top(p.y() - m_presa.y());
        m_rettangolo.Width(larghezza);
        m_rettangolo.Height(altezza);
    } else {
        const Maniglia &m = maniglie()[static_cast<std::size_t>(m_maniglia)];
        if (m.sinistra)
            m_rettangolo.left(p.x());
        if (m.destra)
            m_rettangolo.right(p.x());
        if (m.alto)
            m_rettangolo.top(p.y());
        if (m.basso)
            m_rettangolo.bottom(p.y());
    }
    return m_rettangolo != prima;
}

bool Trascinamento::MouseUp(DisplayLayout &layout, Qt::MouseButton bottone, const GeometriaForm &form) {
    if (!inCorso() || bottone != Qt::LeftButton)
        return false;
    Sagoma sagoma(layout[m_elemento].area, form);
    m_rettangolo.ScreenToTwips(sagoma);
    m_rettangolo.SetCtrlToRect(sagoma);
    layout[m_elemento].area = sagoma.area;
    MostraManiglie(true);
    m_stato = Stato::Fermo;
    return true;
}

void Trascinamento::interrompi() {
    if (!inCorso())
        return;
    m_rettangolo = m_prima;
    m_stato = Stato::Fermo;
}

void Trascinamento::MostraManiglie(bool mostra) {
    m_maniglieVisibili = mostra && m_elemento >= 0;
}

std::array<PostoManiglia, numeroManiglie> Trascinamento::posti(const GeometriaForm &form) const {
    return postiManiglie(m_rettangolo, form.twipsPerPixelX, form.twipsPerPixelY);
}

} // namespace zuvora
