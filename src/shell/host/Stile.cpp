#include "shell/host/Stile.h"

#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"
#include "shell/host/CarattereCasa.h"
#include "shell/host/StileCasa.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>
#include <array>

namespace zuvora {
namespace {

struct Tinta {
    QPalette::ColorRole ruolo;
    QColor colore;
};
constexpr std::array<Tinta, 18> ruoli = {{
    {QPalette::Window, tavolozza::sfondo},
    {QPalette::WindowText, tavolozza::testo},
    {QPalette::Base, tavolozza::bianco},
    {QPalette::AlternateBase, tavolozza::sfondoChiaro},
    {QPalette::Text, tavolozza::testo},
    {QPalette::PlaceholderText, tavolozza::testoTenue},
    {QPalette::Button, tavolozza::sfondoChiaro},
    {QPalette::ButtonText, tavolozza::testo},
    {QPalette::BrightText, tavolozza::bianco},
    {QPalette::Light, tavolozza::bianco},
    {QPalette::Midlight, tavolozza::velo},
    {QPalette::Mid, tavolozza::bordoControllo},
    {QPalette::Dark, tavolozza::testoTenue},
    {QPalette::Highlight, tavolozza::primario},
    {QPalette::HighlightedText, tavolozza::bianco},
    {QPalette::Link, tavolozza::primario},
    {QPalette::ToolTipBase, tavolozza::bianco},
    {QPalette::ToolTipText, tavolozza::testo},
}};

QPalette paletteCasa() {
    QPalette palette(tavolozza::sfondoChiaro, tavolozza::sfondo);
    for (const Tinta &r : ruoli)
        palette.setColor(r.ruolo, r.colore);
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, ruolo, tavolozza::testoSpento);
    palette.setColor(QPalette::Disabled, QPalette::Base, tavolozza::sfondo);
    return palette;
}

// Context menus of text boxes are Qt's too, so its texts are Italian from the start.
void parlaItaliano(QApplication &applicazione) {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto *traduzione = new QTranslator(&applicazione);
    if (traduzione->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(traduzione);
}

// Drawn here: a window asks twice for every size while it comes up.
QIcon iconaFinestre() {
    QIcon icona;
    for (const int lato : {16, 32, 64})
        icona.addPixmap(immagine(Disegno::Zuvora, {lato, lato}));
    return icona;
}

} // namespace

void preparaAspetto(QApplication &applicazione) {
    parlaItaliano(applicazione);
    QApplication::setStyle(new StileCasa);
    QApplication::setFont(carattereCasa());
    QApplication::setPalette(paletteCasa());
    applicazione.setWindowIcon(iconaFinestre());
}

} // namespace zuvora
