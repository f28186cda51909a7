// The mouse on the designer's form.
#include "designer/forms/Form1.h"

#include <QWindow>

namespace zuvora {
namespace {

const int postoTela = DisplayLayout::postoDi(TipoElemento::Tela);

QPoint cursoreDi(const QMouseEvent &e) {
    return e.globalPosition().toPoint();
}

} // namespace

GeometriaForm Form1::geometria() const {
    return {mapToGlobal(QPoint()), frameGeometry(), twipsPerPixel};
}

void Form1::mousePressEvent(QMouseEvent *e) {
    mouseElemento(postoTela, Fase::Premuto, *e);
}

void Form1::mouseMoveEvent(QMouseEvent *e) {
    mouseElemento(postoTela, Fase::Mosso, *e);
}

void Form1::mouseReleaseEvent(QMouseEvent *e) {
    mouseElemento(postoTela, Fase::Rilasciato, *e);
}

void Form1::mouseElemento(int posto, Fase fase, const QMouseEvent &evento) {
    proteggi([&] {
        switch (fase) {
        case Fase::Premuto:
            return premi(posto, evento.button(), cursoreDi(evento));
        case Fase::Mosso:
            return segui(cursoreDi(evento));
        case Fase::Rilasciato:
            return rilascia(posto, evento.button());
        }
    });
}

void Form1::premi(int posto, Qt::MouseButton bottone, QPoint cursore) {
    if (!fermo())
        return; // the mouse belongs to what is dragged
    for (const AzionePressione azione : azioniPressione(m_layout[posto].tipo, bottone, m_layout.eBase())) {
        esegui(azione, posto, cursore);
        if (!isVisible())
            return; // closed meanwhile
    }
}

void Form1::esegui(AzionePressione azione, int posto, QPoint cursore) {
    const LayoutElement &e = m_layout[posto];
    switch (azione) {
    case AzionePressione::RipristinaDidascalia:
        return setCaption(m_didascaliaBase);
    case AzionePressione::TestoDecorazione:
        return setCaption(testoStato(m_didascaliaBase, e.indice));
    case AzionePressione::Seleziona:
        m_selezionato = e.nome();
        return;
    case AzionePressione::Trascina:
        if (m_trascinamento.InizioTrascinamento(m_layout, posto, cursore, geometria()))
            iniziaContorno(Qt::ArrowCursor);
        return;
    case AzionePressione::TrascinaPannello:
        m_trascinamento.prendiPannello(m_layout, e.indice / 3, cursore);
        return;
    case AzionePressione::ScorriSchermata:
        m_trascinamento.prendiFinestra(pos(), cursore);
        return;
    case AzionePressione::Lampo:
        return lampo(posto);
    case AzionePressione::ApriForm2:
        return apriForm2(posto);
    case AzionePressione::ApriDecorazione:
        return apriDecorazione(e.indice);
    case AzionePressione::ApriAnteprimaTG:
        return apriAnteprimaTG();
    case AzionePressione::MenuChiudi:
        return M2.popup(cursore);
    case AzionePressione::NascondiManiglie:
        return MostraManiglie(false);
    }
}

void Form1::segui(QPoint cursore) {
    if (!m_trascinamento.MouseMove(m_layout, cursore, geometria()))
        return;
    switch (m_trascinamento.StatoTrascinamento()) {
    case Trascinamento::Stato::Spostamento:
    case Trascinamento::Stato::Ridimensionamento:
        return mostraContorno();
    case Trascinamento::Stato::Pannello:
        return aggiorna(DisplayLayout::postoDi(TipoElemento::Pannello1, m_trascinamento.pannello()));
    case Trascinamento::Stato::Strumenti:
        return SSPanel1.sposta(m_trascinamento.postoStrumenti());
    case Trascinamento::Stato::Finestra:
        return scorriSchermata(m_trascinamento.postoFinestra() - pos());
    case Trascinamento::Stato::Fermo:
        return;
    }
}

// Any release over a label puts its panel under the rule on bounds, whatever was dragged.
void Form1::rilascia(int posto, Qt::MouseButton bottone) {
    if (m_trascinamento.inContorno()) {
        if (m_trascinamento.MouseUp(m_layout, bottone, geometria()))
            fineContorno();
        return;
    }
    if (m_trascinamento.StatoTrascinamento() == Trascinamento::Stato::Strumenti)
        SSPanel1.sposta(postoDopoRilascio(bersaglioStrumenti, SSPanel1.posto(), m_misura));
    m_trascinamento.lascia();
    const LayoutElement &e = m_layout[posto];
    if (e.tipo == TipoElemento::Text1 && rilasciaPannello(m_layout, e.indice, m_misura))
        aggiorna(posto);
}

void Form1::mouseManiglia(int indice, Fase fase, const QMouseEvent &evento) {
    if (fase != Fase::Premuto)
        return mouseElemento(postoTela, fase, evento);
    if (m_trascinamento.InizioRidimensionamento(m_layout, indice, geometria()))
        iniziaContorno(maniglie()[std::size_t(indice)].cursore);
}

// The mouse belongs to the form until the release, with no button held too: a resize may begin with the right one.
void Form1::iniziaContorno(Qt::CursorShape cursore) {
    disponiManiglie();
    mostraContorno();
    setMouseTracking(true);
    if (isVisible())
        grabMouse(cursore);
}

void Form1::mostraContorno() {
    const CRect &r = m_trascinamento.RettangoloTrascinamento();
    const QPoint origine = mapToGlobal(QPoint());
    const QRect sulForm(QPoint(r.left(), r.top()) - origine, QPoint(r.right() - 1, r.bottom() - 1) - origine);
    m_contorno.mostra(sulForm.normalized());
}

void Form1::lasciaMouse() {
    m_contorno.nascondi();
    setMouseTracking(false);
    releaseMouse();
}

void Form1::fineContorno() {
    lasciaMouse();
    aggiorna(m_trascinamento.ControlloCorrente());
    disponiManiglie();
}

void Form1::MostraManiglie(bool mostra) {
    m_trascinamento.MostraManiglie(mostra);
    disponiManiglie();
}

void Form1::disponiManiglie() {
    const bool visibili = m_trascinamento.maniglieVisibili();
    const auto posti = m_trascinamento.posti(twipsPerPixel);
    const CRect &r = m_trascinamento.RettangoloTrascinamento();
    const QSize presa(ampiezzaPresa(pixelVicino(r.Width())), ampiezzaPresa(pixelVicino(r.Height())));
    for (std::size_t i = 0; i < picHandle.size(); ++i) {
        if (visibili)
            picHandle[i]->mostra({pixelVicino(posti[i].left), pixelVicino(posti[i].top)}, presa);
        else
            picHandle[i]->nascondi();
    }
}

void Form1::mouseStriscia(Fase fase, const QMouseEvent &evento) {
    if (fase == Fase::Premuto && evento.button() == Qt::LeftButton)
        m_trascinamento.prendiStrumenti(SSPanel1.posto(), cursoreDi(evento));
    else
        mouseStrumenti(fase, evento);
}

// The middle button moves a canvas larger than its screen from the toolbox too.
void Form1::mouseStrumenti(Fase fase, const QMouseEvent &evento) {
    if (fase != Fase::Premuto)
        mouseElemento(postoTela, fase, evento);
    else if (evento.button() == Qt::MiddleButton)
        m_trascinamento.prendiFinestra(pos(), cursoreDi(evento));
}

// The platform moves the form as by a title bar; where it can't, the form follows the mouse by itself.
void Form1::mousePresa(Fase fase, const QMouseEvent &evento) {
    using enum Trascinamento::Stato;
    if (fase == Fase::Premuto && evento.button() == Qt::LeftButton)
        m_trascinamento.prendiFinestra(pos(), cursoreDi(evento));
    else if (fase == Fase::Rilasciato && m_trascinamento.StatoTrascinamento() == Finestra)
        m_trascinamento.lascia();
    else if (fase == Fase::Mosso && m_trascinamento.StatoTrascinamento() == Finestra) {
        if (windowHandle() != nullptr && windowHandle()->startSystemMove())
            m_trascinamento.lascia();
        else if (m_trascinamento.MouseMove(m_layout, cursoreDi(evento), geometria()))
            move(m_trascinamento.postoFinestra());
    } else if (fase != Fase::Premuto)
        mouseElemento(postoTela, fase, evento);
}

bool Form1::event(QEvent *e) {
    if (e->type() == QEvent::WindowDeactivate)
        interrompi();
    return Form::event(e);
}

void Form1::hideEvent(QHideEvent *e) {
    interrompi();
    Form::hideEvent(e);
}

// The mouse is lost: an outline is given up, what follows the mouse stays where it is.
void Form1::interrompi() {
    if (m_trascinamento.inContorno()) {
        m_trascinamento.interrompi();
        return lasciaMouse();
    }
    const bool pannello = m_trascinamento.StatoTrascinamento() == Trascinamento::Stato::Pannello;
    rilascia(pannello ? DisplayLayout::postoDi(TipoElemento::Text1, 3 * m_trascinamento.pannello()) : postoTela,
             Qt::NoButton);
}

} // namespace zuvora
