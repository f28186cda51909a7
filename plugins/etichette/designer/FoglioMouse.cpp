// What mouse, wheel, keys and drops do on the canvas.
#include "etichette/designer/Foglio.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int vicino = 6;       // pixels: grips and guide lines catch within them
constexpr int trascinaDopo = 3; // pixels before a press becomes a drag
constexpr int passoTasto = 5;   // tenths of a millimetre
constexpr int passoLungo = 50;

Qt::CursorShape cursore(Presa presa) {
    switch (presa) {
    case Presa::Nessuna:
        return Qt::ArrowCursor;
    case Presa::Corpo:
        return Qt::SizeAllCursor;
    case Presa::AltoSinistra:
    case Presa::BassoDestra:
        return Qt::SizeFDiagCursor;
    case Presa::AltoDestra:
    case Presa::BassoSinistra:
        return Qt::SizeBDiagCursor;
    case Presa::Alto:
    case Presa::Basso:
        return Qt::SizeVerCursor;
    case Presa::Destra:
    case Presa::Sinistra:
        return Qt::SizeHorCursor;
    }
    return Qt::ArrowCursor;
}

} // namespace

// The grips of what is selected come before the bodies of what lies above it.
Foglio::Bersaglio Foglio::bersaglioIn(const QPoint &pixel) const {
    const QPoint punto = inDecimi(pixel);
    const int tolleranza = std::max(1, static_cast<int>(vicino / scala()));
    const auto &oggetti = m_progetto.oggetti();
    if (m_progetto.scelti().size() == 1) {
        const int i = m_progetto.scelti().first();
        const Presa presa = presaIn(oggetti[i]->area, punto, tolleranza);
        if (!oggetti[i]->bloccato && presa != Presa::Nessuna && presa != Presa::Corpo)
            return {i, presa};
    }
    // The empty inside of a frame comes last: what lies in it can be reached.
    for (const bool dentroCornici : {false, true})
        for (int i = static_cast<int>(oggetti.size()) - 1; i >= 0; --i) {
            const Presa presa = presaIn(oggetti[i]->area, punto, tolleranza / 2);
            const bool dentro = presa == Presa::Corpo && oggetti[i]->tipo == TipoOggetto::Cornice && !oggetti[i]->pieno;
            if (presa != Presa::Nessuna && (dentroCornici || !dentro))
                return {i, Presa::Corpo};
        }
    return {};
}

void Foglio::mousePressEvent(QMouseEvent *e) {
    if (e->button() != Qt::LeftButton)
        return;
    m_premuto = e->pos();
    const Bersaglio b = bersaglioIn(e->pos());
    const bool aggiungi = (e->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    m_presa = b.presa;
    if (b.indice < 0) {
        if (!aggiungi)
            m_progetto.scegli({});
        m_gesto = Gesto::Elastico;
        m_elastico = {};
        return;
    }
    QList<int> scelti = m_progetto.scelti();
    if (aggiungi && scelti.contains(b.indice))
        scelti.removeAll(b.indice);
    else if (aggiungi)
        scelti << b.indice;
    else if (!scelti.contains(b.indice))
        scelti = {b.indice};
    m_progetto.scegli(scelti);
    m_partenza.clear();
    for (const int i : m_progetto.scelti())
        if (!m_progetto.oggetti()[i]->bloccato)
            m_partenza << std::pair(i, m_progetto.oggetti()[i]->area);
}

QList<QRect> Foglio::areeFerme() const {
    QList<QRect> ferme;
    for (int i = 0; i < m_progetto.oggetti().size(); ++i)
        if (!m_progetto.scelti().contains(i))
            ferme << m_progetto.oggetti()[i]->area;
    return ferme;
}

// From the start and the whole distance, never by adding up.
void Foglio::muovi(const QPoint &pixel, bool libero) {
    const QPoint di = inDecimi(pixel) - inDecimi(m_premuto);
    const QRegion prima = regioneInMoto();
    m_inMoto = m_partenza;
    for (auto &[indice, area] : m_inMoto)
        area = tira(area, m_presa, di);
    m_aggancio = {};
    if (!libero) {
        const QRect carta(0, 0, m_progetto.carta().larghezza, m_progetto.carta().altezza);
        const int raggio = std::max(1, static_cast<int>(vicino / scala()));
        const QPoint angolo = m_presa == Presa::Corpo ? QPoint() : inDecimi(pixel);
        const QRect capo = m_presa == Presa::Corpo ? m_inMoto.first().second : QRect(angolo, QSize(0, 0));
        m_aggancio = aggancia(capo, areeFerme(), carta, m_griglia, raggio);
        for (std::size_t k = 0; k < std::size_t(m_inMoto.size()); ++k)
            m_inMoto[qsizetype(k)].second = tira(m_partenza[qsizetype(k)].second, m_presa, di + m_aggancio.correzione);
    }
    viewport()->update(prima + regioneInMoto());
}

// Gives up a drag, also one that a press has only prepared: nothing has moved.
void Foglio::rinuncia() {
    if (m_partenza.isEmpty())
        return;
    m_gesto = Gesto::Nessuno;
    m_inMoto.clear();
    m_partenza.clear();
    rifai();
}

void Foglio::mouseMoveEvent(QMouseEvent *e) {
    if ((e->buttons() & Qt::LeftButton) == 0) {
        viewport()->setCursor(cursore(bersaglioIn(e->pos()).presa));
        return;
    }
    if (m_gesto == Gesto::Elastico) {
        m_elastico = QRect(m_premuto, e->pos()).normalized();
        viewport()->update();
        return;
    }
    if (m_partenza.isEmpty())
        return;
    if (m_gesto == Gesto::Nessuno && (e->pos() - m_premuto).manhattanLength() < trascinaDopo)
        return;
    if (m_gesto == Gesto::Nessuno) {
        m_gesto = Gesto::Trascina;
        m_inMoto = m_partenza;
        m_fermiBuoni = false;
    }
    muovi(e->pos(), (e->modifiers() & Qt::AltModifier) != 0);
}

void Foglio::mouseReleaseEvent(QMouseEvent *e) {
    if (e->button() != Qt::LeftButton)
        return;
    const auto mossi = std::exchange(m_inMoto, {});
    m_partenza.clear();
    m_fermiBuoni = false;
    const Gesto gesto = std::exchange(m_gesto, Gesto::Nessuno);
    if (gesto == Gesto::Trascina)
        m_progetto.mettiAree(mossi, m_presa == Presa::Corpo ? u"Sposta"_s : u"Ridimensiona"_s);
    if (gesto == Gesto::Elastico && !m_elastico.isEmpty()) {
        QList<int> scelti = m_progetto.scelti();
        for (int i = 0; i < m_progetto.oggetti().size(); ++i)
            if (QRectF(m_elastico).contains(inPixel(m_progetto.oggetti()[i]->area)))
                scelti << i;
        m_progetto.scegli(scelti);
    }
    viewport()->update();
}

void Foglio::mouseDoubleClickEvent(QMouseEvent *e) {
    if (e->button() == Qt::LeftButton && bersaglioIn(e->pos()).indice >= 0)
        Q_EMIT modificaChiesta();
}

void Foglio::wheelEvent(QWheelEvent *e) {
    if ((e->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(e);
        return;
    }
    setZoom(e->angleDelta().y() > 0 ? zoom() * 5 / 4 : zoom() * 4 / 5);
    e->accept();
}

// The object after or before the last one selected, in their order and round again.
void Foglio::scegliVicino(int di) {
    const int quanti = static_cast<int>(m_progetto.oggetti().size());
    if (quanti == 0)
        return;
    const int da = m_progetto.scelti().isEmpty() ? (di > 0 ? -1 : quanti) : m_progetto.scelti().last();
    const int scelto = (da + di + quanti) % quanti;
    m_progetto.scegli({scelto});
    const QPoint centro = posizioneSuSchermo(scelto).center() - viewport()->rect().center();
    if (!viewport()->rect().intersects(posizioneSuSchermo(scelto))) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + centro.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() + centro.y());
    }
}

void Foglio::keyPressEvent(QKeyEvent *e) {
    const int passo = (e->modifiers() & Qt::ShiftModifier) != 0 ? passoLungo : passoTasto;
    switch (e->key()) {
    case Qt::Key_Left:
        return m_progetto.sposta({-passo, 0}, true);
    case Qt::Key_Right:
        return m_progetto.sposta({passo, 0}, true);
    case Qt::Key_Up:
        return m_progetto.sposta({0, -passo}, true);
    case Qt::Key_Down:
        return m_progetto.sposta({0, passo}, true);
    case Qt::Key_Space:
        return scegliVicino((e->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return m_progetto.elimina();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_progetto.scelti().isEmpty())
            Q_EMIT modificaChiesta();
        return;
    case Qt::Key_Escape:
        if (!m_partenza.isEmpty())
            return rinuncia();
        if (!m_progetto.scelti().isEmpty())
            return m_progetto.scegli({});
        break;
    default:
        break;
    }
    if (e->matches(QKeySequence::SelectAll))
        return m_progetto.scegliTutti();
    e->ignore();
}

void Foglio::dragEnterEvent(QDragEnterEvent *e) {
    if (e->mimeData()->hasText())
        e->acceptProposedAction();
}

void Foglio::dragMoveEvent(QDragMoveEvent *e) {
    e->acceptProposedAction();
}

void Foglio::dropEvent(QDropEvent *e) {
    Q_EMIT variabileLasciata(e->mimeData()->text(), inDecimi(e->position().toPoint()));
    e->acceptProposedAction();
}

} // namespace zuvora
