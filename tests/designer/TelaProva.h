#pragma once

#include "designer/forms/Form1.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/LetturaLayout.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QTest>
#include <gtest/gtest.h>

namespace zuvora {

// An open designer on a layout of a fresh installation, shown without waiting for its closing.
class TelaProva {
public:
    explicit TelaProva(const QString &tabella = QStringLiteral("Layout1"), int risoluzione = 3) : layout(tabella) {
        apriForm(risoluzione);
    }
    // The layout is read by the constructor of the form's test only after `sql` has changed the tables.
    TelaProva(const QString &tabella, const QStringList &sql, ApritoriTela apritori_ = {}, int risoluzione = 3)
        : layout(tabella), apritori(std::move(apritori_)) {
        for (const QString &istruzione : sql)
            installazione.esegui(istruzione);
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
