#pragma once

#include "designer/logic/LayoutElement.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <array>

namespace zuvora {

inline constexpr int righeLayout = 70;
inline constexpr int numeroPannelli = 8;
inline constexpr int numeroDecorazioni = 25;
inline constexpr int numeroLayout = 11; // the base and Layout1 to Layout10

// The table of a layout by its number: 0 the base, 1 to 10 the others. Other numbers give an empty name.
QString tabellaLayout(int numero);
// The number of a layout table, -1 for any other name. Without regard to case.
int numeroLayoutDi(QStringView tabella);

// One layout of the call display: its 70 elements in row order, the stacking order and the frame of free
// decorations. It is the only copy while the designer is open. An element's number ("posto") is its row counted from 0.
class DisplayLayout {
public:
    // All elements at their start values.
    explicit DisplayLayout(QString nomeTabella);

    const QString &NomeTabella() const { return m_nomeTabella; }
    bool eBase() const; // the master layout, in which most elements don't answer the mouse

    LayoutElement &operator[](int posto) { return m_elementi[static_cast<std::size_t>(posto)]; }
    const LayoutElement &operator[](int posto) const { return m_elementi[static_cast<std::size_t>(posto)]; }
    auto begin() { return m_elementi.begin(); }
    auto end() { return m_elementi.end(); }
    auto begin() const { return m_elementi.begin(); }
    auto end() const { return m_elementi.end(); }

    // The element of a kind, which must exist; `indice` as in its name (0 for single elements, decorations from 1).
    LayoutElement &elemento(TipoElemento tipo, int indice = 0);
    const LayoutElement &elemento(TipoElemento tipo, int indice = 0) const;
    // The number of an element, -1 when there is none. By name as in "Text1(5)" and "WB1".
    static int postoDi(TipoElemento tipo, int indice = 0);
    static int postoDi(QStringView nome);

    // The hidden label's text: the background's path as a save writes it. "Label2" until a path is set.
    QString &Label2() { return elemento(TipoElemento::Label2).didascalia; }
    const QString &Label2() const { return elemento(TipoElemento::Label2).didascalia; }
    // The canvas: coloreSfondo is the colour of the screen, immagine the path of the background actually shown.
    LayoutElement &tela() { return elemento(TipoElemento::Tela); }
    const LayoutElement &tela() const { return elemento(TipoElemento::Tela); }

    // Of Image1(i), 1 to 25: the picture's path as a save writes it, and the plane as a word, "avanti" (in front) or
    // "dietro" (behind).
    const QString &PercorsiDecorazione(int i) const;
    QStringView PianiDecorazione(int i) const;
    // The picture that a decoration shows: its own, or the frame of a free slot.
    const QString &immagineMostrata(const LayoutElement &decorazione) const;
    // Path of that frame, known once the layout has been read.
    const QString &cornice() const { return m_cornice; }
    void setCornice(const QString &percorso) { m_cornice = percorso; }

    // Numbers of the elements on the canvas, from the bottom of the stack to its top. Labels lie on their panel.
    const QList<int> &ordine() const { return m_ordine; }
    void portaAvanti(int posto); // to the top of the stack
    void mandaDietro(int posto); // to its bottom
    // Plane of decoration i: the word and the place in the stack.
    void setPiano(int i, bool avanti);

    // An element's place on the canvas in twips: a label's panel and its place in it taken together.
    Area areaSullaTela(int posto) const;

private:
    QString m_nomeTabella;
    std::array<LayoutElement, righeLayout> m_elementi;
    QList<int> m_ordine;
    QString m_cornice;
};

} // namespace zuvora
