// The mouse on the designer's form.
#include "designer/forms/Form1.h"

#include <QWindow>

namespace zuvora {
namespace {

const int PostoTela = DisplayLayout::postoDi(TipoElemento::Tela);

QPoint cursoreDi(const QMouseEvent &e) {
    return e.globalPosition().toPoint();
}

Fase faseDi(const QMouseEvent &e) {
    if (e.type() == QEvent::MouseMove)
        return Fase::Mosso;
    return e.type() == QEvent::MouseButtonRelease ? Fase::Rilasciato : Fase::Premuto;
}

} // namespace

GeometriaForm Form1::geometria() const {
    return {mapToGlobal(QPoint()), frameGeometry(), TwipsPerPixel, TwipsPerPixel};
}

void Form1::mousePressEvent(QMouseEvent *e) {
    mouseElemento(PostoTela, faseDi(*e), *e);
}

void Form1::mouseMoveEvent(QMouseEvent *e) {
    mouseElemento(PostoTela, faseDi(*e), *e);
}

void Form1::mouseReleaseEvent(QMouseEvent *e) {
    mouseElemento(PostoTela, faseDi(*e), *e);
}

// The part of an event that belongs to a running outline drag, wherever the mouse is. False when none runs.
bool Form1::prosegui(Fase fase, const QMouseEvent &evento) {
    if (!m_trascinamento.inCorso())
        return false;
    if (fase == Fase::Mosso && m_trascinamento.MouseMove(cursoreDi(evento), geometria()))
        mostraContorno();
    if (fase == Fase::Rilasciato && m_trascinamento.MouseUp(m_layout, evento.button(), geometria()))
        fineContorno();
    return true;
}

void Form1::mouseElemento(int posto, Fase fase, const QMouseEvent &evento) {
    proteggi([&] {
        if (prosegui(fase, evento))
            return;
        if (fase == Fase::Premuto && !inTrascinamento())
            return premi(posto, evento.button(), cursoreDi(evento));
        const LayoutElement &e = m_layout[posto];
        if (e.tipo != TipoElemento::Text1)
            return;
        if (fase == Fase::Mosso ? muoviPannello(m_layout, m_vivo, e.indice, cursoreDi(evento))
                                : fase == Fase::Rilasciato && rilasciaPannello(m_layout, m_vivo, e.indice, m_misura))
            aggiorna(posto);
    });
}

void Form1::premi(int posto, Qt::MouseButton bottone, QPoint cursore) {
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
    case AzionePressione::TrascinaPannello: {
        const Area &pannello = m_layout.elemento(TipoElemento::Pannello1, e.indice / 3).area;
        return m_vivo.inizia(e.indice / 3, cursore, {pannello.left, pannello.top});
    }
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

void Form1::mouseManiglia(int indice, Fase fase, const QMouseEvent &evento) {
    proteggi([&] {
        if (prosegui(fase, evento) || fase != Fase::Premuto || inTrascinamento())
            return;
        if (m_trascinamento.InizioRidimensionamento(m_layout, indice, geometria()))
            iniziaContorno(maniglie()[std::size_t(indice)].cursore);
    });
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
    const auto posti = m_trascinamento.posti(geometria());
    for (std::size_t i = 0; i < picHandle.size(); ++i) {
        if (visibili)
            picHandle[i]->move(rettangoloTela({double(posti[i].left), double(posti[i].top), 0, 0}).topLeft());
        picHandle[i]->setVisible(visibili);
    }
}

void Form1::mouseStriscia(Fase fase, const QMouseEvent &evento) {
    proteggi([&] {
        if (prosegui(fase, evento))
            return;
        const bool suoi = m_vivo.TrascinamentoAttivo() && m_vivo.bersaglio() == TrascinamentoVivo::strumenti;
        if (fase == Fase::Premuto && evento.button() == Qt::LeftButton && !inTrascinamento())
            m_vivo.inizia(TrascinamentoVivo::strumenti, cursoreDi(evento), SSPanel1.posto());
        else if (fase == Fase::Mosso && suoi)
            SSPanel1.sposta(*m_vivo.muovi(cursoreDi(evento)));
        else if (fase == Fase::Rilasciato && suoi)
            rilasciaStrumenti();
    });
}

void Form1::rilasciaStrumenti() {
    SSPanel1.sposta(postoDopoRilascio(TrascinamentoVivo::strumenti, SSPanel1.posto(), m_misura));
    m_vivo.finisci();
}

// The platform moves the form as by a title bar; where it can't, the form follows the mouse by itself.
void Form1::mousePresa(Fase fase, const QMouseEvent &evento) {
    if (fase == Fase::Premuto && evento.button() == Qt::LeftButton)
        m_presaForm = cursoreDi(evento) - pos();
    if (fase == Fase::Mosso && evento.buttons().testFlag(Qt::LeftButton) && m_presaForm) {
        if (windowHandle() != nullptr && windowHandle()->startSystemMove())
            m_presaForm.reset();
        else
            move(cursoreDi(evento) - *m_presaForm);
    }
    if (fase == Fase::Rilasciato)
        m_presaForm.reset();
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
    if (m_trascinamento.inCorso()) {
        m_trascinamento.interrompi();
        lasciaMouse();
    }
    if (!m_vivo.TrascinamentoAttivo())
        return;
    if (m_vivo.bersaglio() == TrascinamentoVivo::strumenti)
        return rilasciaStrumenti();
    const int pannello = m_vivo.bersaglio();
    if (rilasciaPannello(m_layout, m_vivo, 3 * pannello, m_misura))
        aggiorna(DisplayLayout::postoDi(TipoElemento::Pannello1, pannello));
}

} // namespace zuvora
