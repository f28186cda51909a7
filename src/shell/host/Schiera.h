#pragma once

#include "shell/host/Twips.h"

#include <QString>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <vector>

class QWidget;

namespace zuvora {

// A control array: controls of one name that are told apart by an index. Indices may have gaps. One handler serves all
// of them and gets the index.
template <class C> class Schiera {
public:
    struct Riga {
        int indice;
        const char *didascalia;
        Posto posto;
    };
    struct Membro {
        int indice;
        std::unique_ptr<C> controllo;
    };

    Schiera(QWidget *padre, const char *nome, std::initializer_list<Riga> righe) {
        for (const Riga &riga : righe)
            aggiungi(riga.indice,
                     std::make_unique<C>(padre, nomeCon(nome, riga.indice).constData(), riga.didascalia, riga.posto));
    }
    // An array made by a rule: `crea(index, name)` gives each member.
    template <class F> Schiera(const char *nome, int primo, int ultimo, F crea) {
        for (int i = primo; i <= ultimo; ++i)
            aggiungi(i, crea(i, nomeCon(nome, i).constData()));
    }

    // An array whose indices stand in a table.
    template <class Indici, class F> Schiera(const char *nome, const Indici &indici, F crea) {
        for (const int i : indici)
            aggiungi(i, crea(i, nomeCon(nome, i).constData()));
    }

    C &operator()(int indice) const {
        for (const Membro &m : m_membri)
            if (m.indice == indice)
                return *m.controllo;
        throw std::out_of_range("Schiera");
    }
    auto begin() const { return m_membri.begin(); }
    auto end() const { return m_membri.end(); }
    int size() const { return static_cast<int>(m_membri.size()); }

private:
    static QByteArray nomeCon(const char *nome, int indice) {
        return QByteArray(nome) + '(' + QByteArray::number(indice) + ')';
    }
    void aggiungi(int indice, std::unique_ptr<C> c) { m_membri.push_back({indice, std::move(c)}); }

    std::vector<Membro> m_membri;
};

} // namespace zuvora
