#pragma once

#include "kit/Aspetta.h"
#include "kit/FintaPiattaforma.h"
#include "shell/host/Browser.h"

#include <QStandardPaths>
#include <QTest>
#include <gtest/gtest.h>

namespace zuvora {

inline constexpr int Attesa_ms = 60000; // at most; every wait ends with its condition

// The engine's view inside a browser control, without linking the engine: null while there is none.
inline QWidget *vistaDi(const QWidget &browser) {
    for (auto *w : browser.findChildren<QWidget *>())
        if (w->inherits("QWebEngineView"))
            return w;
    return nullptr;
}
inline QString titoloDi(const QWidget &browser) {
    const QWidget *vista = vistaDi(browser);
    return vista != nullptr ? vista->property("title").toString() : QString();
}

// A window with one browser control, which finds the component where it was built.
class FinestraWeb : public QWidget {
public:
    explicit FinestraWeb(const QString &componenti = QStringLiteral(CARTELLA_COMPONENTI)) {
        piattaforma.cartella = componenti;
        resize(640, 420);
        connect(&browser, &Browser::terminato, this, [this](bool riuscita) { m_esiti << riuscita; });
        show();
    }
    // Goes to an address and waits for the outcome: true when a page is shown.
    bool apri(const QString &indirizzo) {
        m_esiti.clear();
        browser.vai(indirizzo);
        return attendi();
    }
    bool attendi() {
        EXPECT_TRUE(aspetta([this] { return !m_esiti.isEmpty(); }, Attesa_ms));
        return m_esiti.value(0);
    }
    bool attendiTitolo(const QString &titolo) {
        return aspetta([&] { return titoloDi(browser) == titolo; }, Attesa_ms);
    }

    FintaPiattaforma piattaforma;
    Browser browser{this, "wb1", {0, 0, 9600, 6300}, piattaforma};

private:
    QList<bool> m_esiti;
};

} // namespace zuvora
