#include "kiosk/forms/GruppoFont.h"

#include "shell/host/Dialoghi.h"
#include "shell/logic/Numeri.h"

#include <QLocale>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr double misuraConsueta = 10; // points

int coloreIntero(const QString &testo) {
    const double numero = numeroDi(testo).value_or(0);
    return std::abs(numero) < 1e9 ? static_cast<int>(std::nearbyint(numero)) : 0;
}

// Decimals with a comma, as the user would type them and the kiosk reads them.
QString testoMisura(double punti) {
    return QString::number(punti, 'f', QLocale::FloatingPointShortest).replace(u'.', u',');
}

} // namespace

GruppoFont::GruppoFont(QWidget *cornice, const Nomi &nomi, const QString &di, int top, Dialoghi &dialoghi)
    : nome(cornice, nomi.nome, {120, top, 2055, 285}), misura(cornice, nomi.misura, {2235, top, 555, 285}),
      scegli(cornice, nomi.scegli, "...", {2850, top, 375, 285}),
      grassetto(cornice, nomi.grassetto, "Bold", {3390, top, 720, 285}),
      italico(cornice, nomi.italico, "Italic", {4140, top, 750, 285}),
      colore(cornice, nomi.colore, {5010, top, 1020, 285}),
      tavolozza(cornice, nomi.tavolozza, {6090, top, 765, 285}, dialoghi) {
    nome.setAccessibleName(u"Font "_s + di);
    misura.setAccessibleName(u"Misura del font "_s + di);
    scegli.setAccessibleName(u"Scegli il font "_s + di);
    grassetto.setAccessibleName(u"Grassetto, font "_s + di);
    italico.setAccessibleName(u"Corsivo, font "_s + di);
    colore.setAccessibleName(u"Colore "_s + di);
    tavolozza.setAccessibleName(u"Scegli il colore "_s + di);
    for (QWidget *w : {static_cast<QWidget *>(&nome), static_cast<QWidget *>(&misura), static_cast<QWidget *>(&scegli),
                       static_cast<QWidget *>(&colore), static_cast<QWidget *>(&tavolozza)})
        w->setToolTip(w->accessibleName());
    QObject::connect(&tavolozza, &ColorPicker::scelto, &colore,
                     [this](int bgr) { colore.setText(QString::number(bgr)); });
    QObject::connect(&colore, &QLineEdit::textChanged, &tavolozza, [this] { mostraColore(); });
}

FontScelto GruppoFont::font() const {
    return {nome.text(), numeroDi(misura.text()).value_or(misuraConsueta), grassetto.isChecked(), italico.isChecked()};
}

void GruppoFont::setFont(const FontScelto &scelto) {
    grassetto.setChecked(scelto.grassetto);
    italico.setChecked(scelto.italico);
    nome.setText(scelto.nome);
    misura.setText(testoMisura(scelto.misura));
}

void GruppoFont::mostraColore() {
    tavolozza.setColore(coloreIntero(colore.text()));
}

} // namespace zuvora
