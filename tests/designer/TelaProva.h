#pragma once

#include "designer/forms/Form1.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/LetturaLayout.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QTest>
#include <gtest/gtest.h>

namespace zuvora {

// A layout of known places, whatever the installation brings: four panels, texts, three boxes, a background. Rows are
// told by DescCampo, which holds the element's name.
inline QStringList layoutNoto(const QString &tabella, const QString &cartella) {
    struct PostoNoto {
        const char *elemento;
        Area area;
    };
    static constexpr PostoNoto posti[] = {
        {"Text9(0)", {300, 135, 16500, 900}},      {"Text9(1)", {300, 1020, 16500, 480}},
        {"Text9(2)", {16950, 555, 7650, 540}},     {"Text9(3)", {24900, 150, 3750, 1350}},
        {"IM1", {14460, 1650, 14190, 7980}},       {"WB1", {14460, 9735, 6765, 5055}},
        {"MP1", {21375, 9735, 7275, 5055}},        {"Text2", {0, 14940, 28800, 1110}},
        {"Pannello1(0)", {150, 1650, 7005, 6495}}, {"Pannello1(1)", {7305, 1650, 7005, 6495}},
        {"Pannello1(2)", {150, 8295, 7005, 6495}}, {"Pannello1(3)", {7305, 8295, 7005, 6495}},
    };
    const QString aggiorna = QStringLiteral("UPDATE %1 SET ").arg(tabella);
    const DisplayLayout iniziale(tabella);
    QStringList sql{QStringLiteral("BEGIN")};
    for (int i = 0; i < righeLayout; ++i)
        sql << aggiorna + QStringLiteral("DescCampo='%1', testo='%2' WHERE rowid=(SELECT min(rowid) FROM %3)+%4")
                              .arg(iniziale[i].nome(), iniziale[i].didascalia, tabella)
                              .arg(i);
    sql << aggiorna + QStringLiteral("Visibile=DescCampo LIKE 'Text1(%', FontBold=0, \"left\"=0, \"top\"=18000, "
                                     "Altezza=1305, Larghezza=1905, ColoreSfondo=12632256, PercorsoImmagine=CASE "
                                     "DescCampo WHEN 'Label2' THEN '%1/ZuvoraSfondiHD/FH_grigio_8post_.jpg' END")
                          .arg(cartella);
    for (const PostoNoto &p : posti)
        sql << aggiorna +
                   QStringLiteral("Visibile=1, \"left\"=%1, \"top\"=%2, Larghezza=%3, Altezza=%4 WHERE DescCampo='%5'")
                       .arg(p.area.left)
                       .arg(p.area.top)
                       .arg(p.area.width)
                       .arg(p.area.height)
                       .arg(QLatin1String(p.elemento));
    return sql << QStringLiteral("COMMIT");
}

// An open designer on a layout of known places in a fresh installation, shown without waiting for its closing.
class TelaProva {
public:
    // `sql` runs before the layout is read.
    explicit TelaProva(const QString &tabella = QStringLiteral("Layout1"), const QStringList &sql = {},
                       ApritoriTela daAprire = {}, int risoluzione = 3,
                       const std::function<void(ValoriCondivisi &)> &prima = {})
        : layout(tabella), apritori(std::move(daAprire)) {
        if (prima)
            prima(installazione.valori);
        installazione.esegui((layoutNoto(tabella, installazione.cartella()) + sql).join(u';'));
        apriForm(risoluzione);
    }
    InstallazioneProva installazione;
    DisplayLayout layout;
    ImmaginiQt immagini;
    ApritoriTela apritori;
    EsitoLettura esito;
    std::unique_ptr<Form1> form;

    QWidget &w(const char *nome) const { return trova<QWidget>(*form, nome); }
    LayoutElement &e(const char *nome) { return layout[DisplayLayout::postoDi(QString::fromLatin1(nome))]; }
    QRect rettangolo(const char *nome) const { // on the form, pixels
        QWidget &widget = w(nome);
        return {widget.mapTo(form.get(), QPoint()), widget.size()};
    }

    // The form as it looks now, by points of the form, whatever the scale.
    struct Vista {
        QImage immagine;
        QRgb operator()(QPoint p) const { return immagine.pixel(p * immagine.devicePixelRatio()); }
    };
    Vista vista() const { return {form->grab().toImage()}; }

    // The plain messages that come once the form is open.
    std::vector<FintiDialoghi::Box> aspettaBox() {
        std::vector<FintiDialoghi::Box> box;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(box = installazione.dialoghi.prendiBox()).empty(); }));
        return box;
    }

    // The mouse, at points of the form; the event goes to the control that is there, as the platform would send it.
    void premi(QPoint p, Qt::MouseButton b = Qt::LeftButton) { invia(QEvent::MouseButtonPress, p, b, m_premuti | b); }
    void muovi(QPoint p) { invia(QEvent::MouseMove, p, Qt::NoButton, m_premuti); }
    void rilascia(QPoint p, Qt::MouseButton b = Qt::LeftButton) {
        invia(QEvent::MouseButtonRelease, p, b, m_premuti & ~Qt::MouseButtons(b));
    }
    void clicca(QPoint p, Qt::MouseButton b = Qt::LeftButton) {
        premi(p, b);
        rilascia(p, b);
    }
    void trascina(QPoint da, QPoint a) {
        premi(da);
        muovi((da + a) / 2);
        muovi(a);
        rilascia(a);
    }

private:
    void apriForm(int risoluzione) {
        esito = CaricaLayout(layout, immagini, installazione.cartella());
        form = std::make_unique<Form1>(installazione.ambiente, layout, immagini, apritori,
                                       dimensioneTela(risoluzione - 1), nullptr);
        form->avvisaAllApertura(esito.testo());
        form->show();
        QCoreApplication::processEvents(); // the activation comes once the loop runs
    }
    void invia(QEvent::Type tipo, QPoint p, Qt::MouseButton b, Qt::MouseButtons premuti) {
        m_premuti = premuti;
        QWidget *bersaglio = QWidget::mouseGrabber();
        if (bersaglio == nullptr)
            bersaglio = m_preso;
        if (bersaglio == nullptr)
            bersaglio = form->childAt(p);
        if (bersaglio == nullptr)
            bersaglio = form.get();
        m_preso = premuti == Qt::NoButton ? nullptr : bersaglio;
        const QPoint globale = form->mapToGlobal(p);
        QMouseEvent evento(tipo, bersaglio->mapFromGlobal(QPointF(globale)), QPointF(globale), b, premuti,
                           Qt::NoModifier);
        QCoreApplication::sendEvent(bersaglio, &evento);
    }

    Qt::MouseButtons m_premuti;
    QWidget *m_preso = nullptr; // the control that was pressed gets what follows
};

} // namespace zuvora
