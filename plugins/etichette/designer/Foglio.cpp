#include "etichette/designer/Foglio.h"

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int righello = 22;                     // pixels
constexpr int bordo = 24;                        // pixels of table round the paper
constexpr int passoPosto = 50;                   // tenths of a millimetre: where new objects are tried
constexpr int maniglia = 4;                      // pixels from an object's edge to its grips' edge
constexpr qint64 puntiDisegno = 2 * 1024 * 1024; // a larger object isn't kept as a picture
const QColor coloreTavolo(0xd9, 0xde, 0xe3);
const QColor coloreGriglia(0xe4, 0xea, 0xf0);
const QColor coloreMargine(0x9a, 0xb4, 0xcc);
const QColor coloreScelta(0x1f, 0x5f, 0xa8);
const QColor coloreBloccato(0x80, 0x80, 0x80);

} // namespace

Foglio::Foglio(Progetto &progetto, QWidget *padre) : QAbstractScrollArea(padre), m_progetto(progetto) {
    setObjectName(u"foglio"_s);
    setAccessibleName(u"Foglio del biglietto"_s);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    viewport()->setMouseTracking(true);
    connect(&progetto, &Progetto::cambiato, this, [this] {
        rinuncia(); // what is dragged may be gone, or be another by its number
        misuraScorrimento();
        const int dpi = m_progetto.carta().dpi;
        if (std::exchange(m_dpi, dpi) != dpi)
            ridisegna();
        rifai();
    });
    connect(&progetto, &Progetto::sceltiCambiati, viewport(), qOverload<>(&QWidget::update));
}

void Foglio::setValori(const Valori &valori) {
    m_valori = valori;
    ridisegna();
}

void Foglio::setZoom(int percento) {
    if (percento == m_zoom) // as the box echoes it
        return;
    m_adattato = false;
    mettiZoom(percento);
}

void Foglio::mettiZoom(int percento) {
    const int nuovo = std::clamp(percento, 25, 800);
    if (std::exchange(m_zoom, nuovo) == nuovo)
        return;
    misuraScorrimento();
    ridisegna();
    Q_EMIT zoomCambiato(nuovo);
}

void Foglio::adatta() {
    m_adattato = true;
    const double libera = width() - verticalScrollBar()->sizeHint().width() - righello - 2 * bordo - 4;
    mettiZoom(
        static_cast<int>(libera * decimiPerPollice * 100 / (logicalDpiX() * double(m_progetto.carta().larghezza))));
}

void Foglio::setGriglia(int decimi) {
    m_griglia = decimi;
    rifai();
}

double Foglio::scala() const {
    return logicalDpiX() / decimiPerPollice * m_zoom / 100.0;
}

QPoint Foglio::origine() const {
    return {righello + bordo - horizontalScrollBar()->value(), righello + bordo - verticalScrollBar()->value()};
}

QPoint Foglio::inDecimi(const QPoint &pixel) const {
    const QPoint p = pixel - origine();
    return {static_cast<int>(std::lround(p.x() / scala())), static_cast<int>(std::lround(p.y() / scala()))};
}

QRectF Foglio::inPixel(const QRect &area) const {
    return {QPointF(area.x() * scala(), area.y() * scala()) + QPointF(origine()), QSizeF(area.size()) * scala()};
}

QRect Foglio::posizioneSuSchermo(int indice) const {
    return inPixel(m_progetto.oggetti()[indice]->area).toAlignedRect();
}

QPoint Foglio::postoInVista(const QSize &misura) const {
    const QRect vista(inDecimi({righello, righello}), inDecimi({viewport()->width(), viewport()->height()}));
    const QRect carta(QPoint(0, 0), Pittore::misuraCarta(m_progetto.etichetta(), m_valori, Pittore::Modo::Progetto));
    const QRect libera = vista.intersected(carta);
    const QPoint centro = libera.isEmpty() ? carta.center() : libera.center();
    const QPoint mezzo = centro - QPoint(misura.width() / 2, misura.height() / 2);
    QRect posto(QPoint(std::max(0, std::min(mezzo.x(), carta.width() - misura.width())) / passoPosto * passoPosto,
                       std::max(0, mezzo.y()) / passoPosto * passoPosto),
                misura);
    const auto occupato = [this](const QRect &area) {
        const QRect conSpessore = area.adjusted(0, 0, 1, 1);
        return std::any_of(m_progetto.oggetti().begin(), m_progetto.oggetti().end(),
                           [&](const auto &o) { return conSpessore.intersects(o->area.adjusted(0, 0, 1, 1)); });
    };
    const QRect prima = posto;
    for (int y = (libera.y() / passoPosto + 1) * passoPosto; occupato(posto); y += passoPosto) {
        if (y + misura.height() > libera.y() + libera.height())
            return prima.topLeft(); // no room is free: in the middle
        posto.moveTop(y);
    }
    return posto.topLeft();
}

void Foglio::misuraScorrimento() {
    const QSize carta = Pittore::misuraCarta(m_progetto.etichetta(), m_valori, Pittore::Modo::Progetto);
    const auto regola = [](QScrollBar *barra, double contenuto, int vista) {
        barra->setRange(0, std::max(0, static_cast<int>(contenuto) + righello + 2 * bordo - vista));
        barra->setPageStep(vista);
        barra->setSingleStep(20);
    };
    regola(horizontalScrollBar(), carta.width() * scala(), viewport()->width());
    regola(verticalScrollBar(), carta.height() * scala(), viewport()->height());
}

void Foglio::rifai() {
    m_fermiBuoni = false;
    viewport()->update();
}

void Foglio::ridisegna() {
    m_disegni.clear();
    rifai();
}

void Foglio::resizeEvent(QResizeEvent *e) {
    QAbstractScrollArea::resizeEvent(e);
    if (m_adattato)
        adatta();
    misuraScorrimento();
    rifai();
}

void Foglio::scrollContentsBy(int /*dx*/, int /*dy*/) {
    rifai();
}

QRect Foglio::ingombro(const Oggetto &oggetto, const QRect &area) const {
    const int fuori = static_cast<int>(std::ceil(oggetto.spessore * scala())) + 2;
    return inPixel(area).toAlignedRect().adjusted(-fuori, -fuori, fuori, fuori);
}

// At rest or moved: what the object looks like is drawn once. One that is being resized, or is very large, is drawn.
void Foglio::dipingiOggetto(QPainter &p, const Progetto::OggettoFermo &oggetto, const QRect &area) {
    const QRect posto = ingombro(*oggetto, area);
    if (!posto.intersects(viewport()->rect()))
        return;
    const double rapporto = devicePixelRatioF();
    const QSize punti = (QSizeF(posto.size()) * rapporto).toSize();
    if (area.size() != oggetto->area.size() || qint64{punti.width()} * punti.height() > puntiDisegno)
        return disegnaOggetto(p, *oggetto, area);
    const QRect casa = ingombro(*oggetto, oggetto->area);
    Disegno *disegno = m_disegni.object(oggetto.get());
    if (disegno == nullptr) {
        disegno = new Disegno{QPixmap((QSizeF(casa.size()) * rapporto).toSize()), oggetto};
        disegno->dipinto.setDevicePixelRatio(rapporto);
        disegno->dipinto.fill(Qt::transparent);
        QPainter dentro(&disegno->dipinto);
        dentro.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        dentro.translate(-casa.topLeft());
        disegnaOggetto(dentro, *oggetto, oggetto->area);
        m_disegni.insert(oggetto.get(), disegno, 1 + qint64{punti.width()} * punti.height() / 256);
    }
    const QPointF di = inPixel(area).topLeft() - inPixel(oggetto->area).topLeft();
    p.drawPixmap(casa.topLeft() + di.toPoint(), disegno->dipinto);
}

void Foglio::disegnaOggetto(QPainter &p, const Oggetto &oggetto, const QRect &area) {
    p.save();
    p.translate(origine());
    p.scale(scala(), scala());
    m_pittore.disegnaOggetto(p, oggetto, area, m_progetto.carta().dpi, m_valori, Pittore::Modo::Progetto);
    p.restore();
}

void Foglio::dipingiCarta(QPainter &p) {
    const QSize misura = Pittore::misuraCarta(m_progetto.etichetta(), m_valori, Pittore::Modo::Progetto);
    const QRectF carta = inPixel(QRect(QPoint(0, 0), misura));
    p.fillRect(carta.translated(3, 3), QColor(0, 0, 0, 60));
    p.fillRect(carta, Qt::white);
    if (m_griglia > 0 && m_griglia * scala() >= 5) {
        p.setPen(coloreGriglia);
        for (int x = m_griglia; x < misura.width(); x += m_griglia)
            p.drawLine(inPixel(QRect(x, 0, 0, misura.height())).topLeft(),
                       inPixel(QRect(x, misura.height(), 0, 0)).topLeft());
        for (int y = m_griglia; y < misura.height(); y += m_griglia)
            p.drawLine(inPixel(QRect(0, y, 0, 0)).topLeft(), inPixel(QRect(misura.width(), y, 0, 0)).topLeft());
    }
    p.setPen(QPen(coloreMargine, 1, Qt::DashLine));
    p.drawRect(inPixel(QRect(QPoint(0, 0), misura).marginsRemoved(m_progetto.carta().margini)));
}

void Foglio::dipingiRighelli(QPainter &p) {
    p.fillRect(QRect(0, 0, viewport()->width(), righello), palette().window());
    p.fillRect(QRect(0, 0, righello, viewport()->height()), palette().window());
    p.setPen(palette().color(QPalette::WindowText));
    QFont piccolo = font();
    piccolo.setPointSizeF(7);
    p.setFont(piccolo);
    const double millimetro = 10 * scala();
    const int passo = millimetro * 10 >= 40 ? 10 : 50;
    const auto segni = [&](int lungo, int inizio, auto segno) {
        const int primo = static_cast<int>((righello - inizio) / millimetro);
        for (int mm = primo; inizio + mm * millimetro < lungo; ++mm)
            if (const int dove = static_cast<int>(inizio + mm * millimetro); dove >= righello)
                segno(dove, mm);
    };
    const auto lunghezza = [&](int mm) { return mm % passo == 0 ? 12 : mm % 5 == 0 ? 7 : 4; };
    segni(viewport()->width(), origine().x(), [&](int x, int mm) {
        if (millimetro >= 4 || mm % 5 == 0)
            p.drawLine(x, righello - lunghezza(mm), x, righello - 1);
        if (mm % passo == 0)
            p.drawText(x + 2, 10, QString::number(mm));
    });
    segni(viewport()->height(), origine().y(), [&](int y, int mm) {
        if (millimetro >= 4 || mm % 5 == 0)
            p.drawLine(righello - lunghezza(mm), y, righello - 1, y);
        if (mm % passo == 0)
            p.drawText(1, y + 10, QString::number(mm));
    });
    p.fillRect(QRect(0, 0, righello, righello), palette().window());
    p.drawText(QRect(0, 0, righello, righello), Qt::AlignCenter, u"mm"_s);
}

void Foglio::dipingiFermi() {
    if (m_fermiBuoni)
        return;
    const double rapporto = devicePixelRatioF();
    if (m_fermi.devicePixelRatio() != rapporto)
        m_disegni.clear();
    m_fermi = QPixmap((QSizeF(viewport()->size()) * rapporto).toSize());
    m_fermi.setDevicePixelRatio(rapporto);
    m_fermi.fill(coloreTavolo);
    QPainter p(&m_fermi);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    dipingiCarta(p);
    for (int i = 0; i < m_progetto.oggetti().size(); ++i)
        if (std::none_of(m_inMoto.begin(), m_inMoto.end(), [i](const auto &m) { return m.first == i; }))
            dipingiOggetto(p, m_progetto.oggetti()[i], m_progetto.oggetti()[i]->area);
    m_fermiBuoni = true;
}

void Foglio::dipingiScelti(QPainter &p) {
    for (const int i : m_progetto.scelti()) {
        const Oggetto &o = *m_progetto.oggetti()[i];
        QRect area = o.area;
        for (const auto &[indice, nuova] : m_inMoto)
            if (indice == i)
                area = nuova;
        const QRectF r = inPixel(area);
        const QColor colore = o.bloccato ? coloreBloccato : coloreScelta;
        p.setPen(QPen(colore, 1, o.bloccato ? Qt::DashLine : Qt::SolidLine));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
        if (o.bloccato)
            continue;
        p.setBrush(Qt::white);
        for (const double x : {r.left(), r.center().x(), r.right()})
            for (const double y : {r.top(), r.center().y(), r.bottom()})
                if (QPointF(x, y) != r.center())
                    p.drawRect(QRectF(x - 3, y - 3, 6, 6));
    }
}

// The dragged objects with their grips, and the guide lines.
QRegion Foglio::regioneInMoto() const {
    QRegion regione;
    for (const auto &[indice, area] : m_inMoto)
        regione += ingombro(*m_progetto.oggetti()[indice], area).adjusted(-maniglia, -maniglia, maniglia, maniglia);
    for (const int x : m_aggancio.verticali)
        regione += QRect(static_cast<int>(inPixel(QRect(x, 0, 0, 0)).x()) - 2, 0, 5, viewport()->height());
    for (const int y : m_aggancio.orizzontali)
        regione += QRect(0, static_cast<int>(inPixel(QRect(0, y, 0, 0)).y()) - 2, viewport()->width(), 5);
    return regione;
}

void Foglio::paintEvent(QPaintEvent * /*e*/) {
    dipingiFermi();
    QPainter p(viewport());
    p.drawPixmap(0, 0, m_fermi);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const auto &[indice, area] : m_inMoto)
        dipingiOggetto(p, m_progetto.oggetti()[indice], area);
    dipingiScelti(p);
    if (m_gesto == Gesto::Trascina) {
        p.setPen(QPen(QColor(0xd0, 0x40, 0x80), 1));
        for (const int x : m_aggancio.verticali)
            p.drawLine(QPointF(inPixel(QRect(x, 0, 0, 0)).x(), 0), QPointF(inPixel(QRect(x, 0, 0, 0)).x(), height()));
        for (const int y : m_aggancio.orizzontali)
            p.drawLine(QPointF(0, inPixel(QRect(0, y, 0, 0)).y()), QPointF(width(), inPixel(QRect(0, y, 0, 0)).y()));
    }
    if (m_gesto == Gesto::Elastico) {
        p.setPen(QPen(coloreScelta, 1, Qt::DashLine));
        p.setBrush(QColor(0x1f, 0x5f, 0xa8, 30));
        p.drawRect(m_elastico);
    }
    dipingiRighelli(p);
    m_pittore.prendiAvvisi();
    if (hasFocus()) {
        p.setRenderHint(QPainter::Antialiasing, false);
        p.setPen(coloreScelta);
        p.setBrush(Qt::NoBrush);
        p.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace zuvora
