#include "designer/forms/Form2.h"

#include "shell/host/Dialoghi.h"
#include "shell/logic/Numeri.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Misura interno{5925, 4290};
constexpr int barraTitolo = 480; // twips of frame and title bar in the pages' heights
constexpr int massimoTesto = 50; // characters

constexpr std::array postiFE1{Posto{600, 240, 3495, 285}, Posto{4080, 240, 735, 285}, Posto{1320, 1440, 2175, 285},
                              Posto{1320, 1800, 2175, 285}};
constexpr std::array<QStringView, 4> nomiFE1{u"Nome del font", u"Dimensione del font", u"Colore Sfondo",
                                             u"Colore Testo"};

QFont fontTitolo() {
    QFont font(u"Palatino Linotype"_s);
    font.setStyleHint(QFont::Serif);
    font.setPointSizeF(21.75);
    return font;
}

} // namespace

Form2::Form2(const Ambiente &contesto, DisplayLayout &layout, int posto, std::function<void()> applicata,
             QWidget *padre)
    : Form(contesto, "Form2", "Impostazioni Elementi", interno, padre), m_layout(layout),
      m_classe(classeDi(layout[posto]).value()), m_applicata(std::move(applicata)),
      FE1("FE1", 0, 3,
          [this](int i, const char *nome) { return std::make_unique<Edit>(&box1, nome, postiFE1[std::size_t(i)]); }),
      CP1(&box1, "CP1", {3600, 1400, 1695, 375}, ambiente().dialoghi),
      CP2(&box1, "CP2", {3600, 1760, 1695, 375}, ambiente().dialoghi) {
    for (const auto &[i, campo] : FE1) {
        campo->setReadOnly(true);
        campo->setAccessibleName(nomiFE1[std::size_t(i)].toString());
    }
    PB1_0.setAccessibleName(u"Scegli il font"_s);
    CP1.setAccessibleName(u"Scegli il colore dello sfondo"_s);
    CP2.setAccessibleName(u"Scegli il colore del testo"_s);
    Testo999.setMaxLength(massimoTesto);
    Label4.hide();
    for (const auto &[i, etichetta] : Label2)
        etichetta->setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // in line with the fields
    Label1.setFontBase(fontTitolo());
    disponi(paginaClasse(m_classe));
    riempi(riempiCampi(m_layout, posto));
    alClic(PB1_0, [this] { scegliFont(); });
    quando(CP1, &ColorPicker::scelto, [this] { FE1(2).setText(QString::number(CP1.Colore())); });
    quando(CP2, &ColorPicker::scelto, [this] { FE1(3).setText(QString::number(CP2.Colore())); });
    Btn(0).setRuolo(Ruolo::Principale);
    alClic(Btn(0), [this] { applica(); });
    alClic(Btn(1), [this] { scarica(); });
}

void Form2::disponi(const PaginaClasse &pagina) {
    Label1.setCaption(pagina.titolo.toString());
    if (pagina.altezza > 0)
        setMisuraInterna({interno.width, pagina.altezza - barraTitolo});
    Label2(6).setEnabled(pagina.haTesto());
    Testo999.setEnabled(pagina.haTesto());
    for (const QStringView nome : pagina.disabilitati)
        box1.findChild<QWidget *>(nome.toString())->setEnabled(false);
}

void Form2::riempi(const CampiForm2 &campi) {
    for (const auto &[i, campo] : FE1)
        campo->setText(campi.FE1[std::size_t(i)]);
    CB1(0).setChecked(campi.grassetto);
    CB1(1).setChecked(campi.corsivo);
    CB2.setChecked(campi.trasparente);
    allineamento.setScelto(campi.RB1);
    Testo999.setText(campi.Testo999);
    Label4.setCaption(testoNumero(campi.Label4));
}

CampiForm2 Form2::campi() const {
    CampiForm2 campi;
    for (const auto &[i, campo] : FE1)
        campi.FE1[std::size_t(i)] = campo->text();
    campi.grassetto = CB1(0).isChecked();
    campi.corsivo = CB1(1).isChecked();
    campi.trasparente = CB2.isChecked();
    campi.RB1 = allineamento.scelto();
    campi.Testo999 = Testo999.text();
    campi.Label4 = singoloDi(Label4.Caption()).value_or(0);
    return campi;
}

void Form2::attivata() {
    CP1.setColore(FE1(2).text().toInt());
    CP2.setColore(FE1(3).text().toInt());
}

void Form2::scegliFont() {
    const auto scelto = ambiente().dialoghi.scegliFont(this);
    if (!scelto)
        return;
    FE1(0).setText(scelto->nome);
    FE1(1).setText(testoNumero(scelto->misura));
    CB1(0).setChecked(scelto->grassetto);
    CB1(1).setChecked(scelto->italico);
}

void Form2::applica() {
    if (!applicaClasse(m_layout, m_classe, campi()))
        return;
    m_applicata();
    Btn(0).spunta();
}

} // namespace zuvora
