#pragma once

#include <QDataStream>
#include <QStringList>

// How the process that reads an old database hands it to the one that writes the new: a stream of messages, each begun
// by its kind. Values travel as texts in the form in which they are stored, Null as a null text.
namespace zuvora::installa {

enum class Messaggio : quint8 { Tabella, Riga, Collegata, Fine, Guasto };

enum class TipoAccess : quint8 { Logico, Intero, Reale, Valuta, Data, Testo, Byte };

struct ColonnaAccess {
    QString nome;
    TipoAccess tipo = TipoAccess::Testo;

    bool operator==(const ColonnaAccess &) const = default;
};

struct TabellaAccess {
    QString nome;
    QList<ColonnaAccess> colonne;
    qint32 righe = 0; // as the old database counts them
};

inline QDataStream &operator<<(QDataStream &s, const ColonnaAccess &c) {
    return s << c.nome << quint8(c.tipo);
}
inline QDataStream &operator>>(QDataStream &s, ColonnaAccess &c) {
    quint8 tipo = 0;
    s >> c.nome >> tipo;
    c.tipo = TipoAccess(tipo);
    return s;
}
inline QDataStream &operator<<(QDataStream &s, const TabellaAccess &t) {
    return s << t.nome << t.colonne << t.righe;
}
inline QDataStream &operator>>(QDataStream &s, TabellaAccess &t) {
    return s >> t.nome >> t.colonne >> t.righe;
}

} // namespace zuvora::installa
