#include "designer/logic/Righe.h"
#include "shell/logic/Numeri.h"

#include <cmath>

namespace zuvora {

namespace {

using enum ColonnaLayout;

EsitoValore impostaNumero(double &dove, const Valore &v, double minimo, double massimo) {
    if (eNull(v))
        return EsitoValore::Assente;
    const auto numero = singoloDi(v);
    if (!numero || *numero < minimo || *numero > massimo)
        return EsitoValore::NonValido;
    dove = *numero;
    return EsitoValore::Letto;
}

EsitoValore impostaPosizione(double &dove, const Valore &v) {
    return impostaNumero(dove, v, -HUGE_VAL, HUGE_VAL);
}

EsitoValore impostaMisura(double &dove, const Valore &v) {
    return impostaNumero(dove, v, 0, HUGE_VAL);
}

EsitoValore impostaIntero(int &dove, const Valore &v, int massimo) {
    double valore = dove;
    const EsitoValore esito = impostaNumero(valore, v, 0, massimo);
    if (esito == EsitoValore::Letto)
        dove = static_cast<int>(std::nearbyint(valore));
    return esito;
}

EsitoValore impostaAllineamento(zuvora::Allineamento &dove, const Valore &v) {
    int valore = static_cast<int>(dove);
    const EsitoValore esito = impostaIntero(valore, v, 2);
    dove = static_cast<zuvora::Allineamento>(valore);
    return esito;
}

EsitoValore impostaBooleano(bool &dove, const Valore &v) {
    if (v.typeId() == QMetaType::QString)
        return EsitoValore::NonValido;
    dove = eVero(v);
    return EsitoValore::Letto;
}

EsitoValore impostaPiano(DisplayLayout &layout, int i, const Valore &v) {
    bool avanti = false;
    const EsitoValore esito = impostaBooleano(avanti, v);
    if (esito == EsitoValore::Letto)
        layout.setPiano(i, avanti);
    return esito;
}

EsitoValore impostaFont(QString &dove, const Valore &v) {
    if (eNull(v))
        return EsitoValore::Assente;
    const QString nome = testoDi(v, {});
    if (nome.isEmpty())
        return EsitoValore::NonValido;
    dove = nome;
    return EsitoValore::Letto;
}

EsitoValore impostaTesto(LayoutElement &e, const Valore &v) {
    if (eNull(v) && e.tipo == TipoElemento::Text9)
        return EsitoValore::Assente;
    e.didascalia = testoDi(v, {});
    return EsitoValore::Letto;
}

EsitoValore impostaSfondo(LayoutElement &e, const Valore &v) {
    if (eNull(v) && e.tipo == TipoElemento::Tela) {
        e.coloreSfondo = 0;
        return EsitoValore::Letto;
    }
    return impostaIntero(e.coloreSfondo, v, coloreMassimo);
}

} // namespace

Valore valoreDi(const DisplayLayout &layout, int posto, ColonnaLayout c) {
    const LayoutElement &e = layout[posto];
    const bool decorazione = e.tipo == TipoElemento::Image1;
    switch (c) {
    case DescCampo:
        break; // never written from an element
    case Top:
        return singolo(e.area.top);
    case Left:
        return singolo(e.area.left);
    case Altezza:
        return singolo(e.area.height);
    case Larghezza:
        return singolo(e.area.width);
    case Testo:
        return e.didascalia;
    case NomeFont:
        return e.font.nome;
    case DimFont:
        return singolo(e.font.dimensione);
    case FontBold:
        return decorazione ? e.avanti : e.font.grassetto;
    case FontItalic:
        return e.font.corsivo;
    case ColoreSfondo:
        return qlonglong{e.coloreSfondo};
    case ColoreTesto:
        return qlonglong{e.coloreTesto};
    case ColonnaLayout::Allineamento:
        return static_cast<qlonglong>(e.allineamento);
    case Visibile:
        return e.visibile;
    case PercorsoImmagine:
        return decorazione ? e.immagine : e.didascalia;
    case SfondoTestoTrasparente:
        return e.trasparente;
    }
    return {};
}

EsitoValore impostaValore(DisplayLayout &layout, int posto, ColonnaLayout c, const Valore &v) {
    LayoutElement &e = layout[posto];
    switch (c) {
    case DescCampo:
    case PercorsoImmagine:
        break;
    case Top:
        return impostaPosizione(e.area.top, v);
    case Left:
        return impostaPosizione(e.area.left, v);
    case Altezza:
        return impostaMisura(e.area.height, v);
    case Larghezza:
        return impostaMisura(e.area.width, v);
    case Testo:
        return impostaTesto(e, v);
    case NomeFont:
        return impostaFont(e.font.nome, v);
    case DimFont:
        return impostaNumero(e.font.dimensione, v, fontMinimo, fontMassimo);
    case FontBold:
        return e.tipo == TipoElemento::Image1 ? impostaPiano(layout, e.indice, v)
                                              : impostaBooleano(e.font.grassetto, v);
    case FontItalic:
        return impostaBooleano(e.font.corsivo, v);
    case ColoreSfondo:
        return impostaSfondo(e, v);
    case ColoreTesto:
        return impostaIntero(e.coloreTesto, v, coloreMassimo);
    case ColonnaLayout::Allineamento:
        return impostaAllineamento(e.allineamento, v);
    case Visibile:
        return impostaBooleano(e.visibile, v);
    case SfondoTestoTrasparente:
        return impostaBooleano(e.trasparente, v);
    }
    return EsitoValore::Assente;
}

} // namespace zuvora
