#include "shell/host/Grid.h"

#include "shell/host/Abbreviate.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

// The rows of a record set, read one by one as the view asks for them.
class ModelloDati : public QAbstractTableModel {
public:
    ModelloDati(std::vector<Grid::Colonna> colonne, QObject *padre)
        : QAbstractTableModel(padre), m_colonne(std::move(colonne)) {}

    void ricarica(Data *dato) {
        beginResetModel();
        m_dato = dato;
        m_righe = 0;
        m_indici.clear();
        if (dato != nullptr && dato->aperto()) {
            Recordset &rs = dato->Recordset();
            m_righe = rs.RecordCount();
            const QStringList nomi = rs.Fields().Names();
            for (const Grid::Colonna &c : m_colonne) {
                const auto trovato = std::find_if(nomi.begin(), nomi.end(), [&](const QString &nome) {
                    return nome.compare(QString::fromUtf8(c.campo), Qt::CaseInsensitive) == 0;
                });
                m_indici.push_back(trovato == nomi.end() ? -1 : static_cast<int>(trovato - nomi.begin()));
            }
        }
        endResetModel();
    }

    int rowCount(const QModelIndex &padre = {}) const override { return padre.isValid() ? 0 : m_righe; }
    int columnCount(const QModelIndex &padre = {}) const override {
        return padre.isValid() ? 0 : static_cast<int>(m_colonne.size());
    }
    QVariant data(const QModelIndex &indice, int ruolo) const override {
        return ruolo == Qt::DisplayRole ? testo(indice.row(), indice.column()) : QVariant();
    }
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override {
        if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole)
            return {};
        return QString::fromUtf8(m_colonne.at(static_cast<std::size_t>(sezione)).titolo);
    }
    QString testo(int riga, int colonna) const {
        const int indice = m_indici.value(colonna, -1);
        if (m_dato == nullptr || !m_dato->aperto() || indice < 0 || riga < 0 || riga >= m_righe)
            return {};
        try {
            const Valore v = m_dato->Recordset().leggi(riga, indice);
            if (v.typeId() == QMetaType::Bool)
                return v.toBool() ? u"Sì"_s : u"No"_s;
            return testoDi(v, {});
        } catch (const EngineError &) {
            return u"(non leggibile)"_s; // the list stays; the next action on the row tells why
        }
    }

private:
    std::vector<Grid::Colonna> m_colonne;
    QList<int> m_indici;
    Data *m_dato = nullptr;
    int m_righe = 0;
};

Grid::Grid(QWidget *padre, const char *nome, const Posto &posto, std::vector<Colonna> colonne)
    : Controllo(padre, nome, posto), m_modello(new ModelloDati(colonne, this)) {
    setModel(m_modello);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    abbreviaVoci(*this);
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        const int sezione = static_cast<int>(i);
        if (colonne[i].larghezza > 0)
            horizontalHeader()->resizeSection(sezione, pixelDa(colonne[i].larghezza));
        else
            horizontalHeader()->setSectionResizeMode(sezione, QHeaderView::Stretch);
    }
    connect(this, &QTableView::clicked, this, [this] {
        if (!m_doppio)
            Q_EMIT cliccato();
    });
    connect(this, &QTableView::doubleClicked, this, &Grid::attivato);
}

Grid::~Grid() = default;

void Grid::lega(Data &dato) {
    m_dato = &dato;
    dato.seAggiornato(*this, [this] { riempi(); });
    if (dato.aperto())
        riempi();
}

void Grid::riempi() {
    m_riempimento = true;
    m_modello->ricarica(m_dato);
    if (m_modello->rowCount() > 0)
        setCurrentIndex(m_modello->index(0, 0));
    m_riempimento = false;
}

int Grid::Rows() const {
    return m_modello->rowCount();
}

int Grid::Row() const {
    return currentIndex().row();
}

void Grid::seleziona(int riga) {
    setCurrentIndex(m_modello->index(riga, 0));
}

QString Grid::testo(int riga, int colonna) const {
    return m_modello->testo(riga, colonna);
}

// Where nobody waits for it, Enter goes on to the form and its main action.
void Grid::keyPressEvent(QKeyEvent *e) {
    switch (e->key()) {
    case Qt::Key_Home:
        seleziona(0);
        break;
    case Qt::Key_End:
        seleziona(Rows() - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (Row() >= 0 && isSignalConnected(QMetaMethod::fromSignal(&Grid::attivato)))
            Q_EMIT attivato();
        else
            e->ignore();
        break;
    default:
        Controllo::keyPressEvent(e);
    }
}

void Grid::mouseReleaseEvent(QMouseEvent *e) {
    Controllo::mouseReleaseEvent(e);
    m_doppio = false;
}

void Grid::mouseDoubleClickEvent(QMouseEvent *e) {
    m_doppio = true;
    Controllo::mouseDoubleClickEvent(e);
}

void Grid::currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) {
    QTableView::currentChanged(attuale, precedente);
    if (m_dato == nullptr || !m_dato->aperto() || !attuale.isValid())
        return;
    if (m_dato->Recordset().AbsolutePosition() != attuale.row())
        m_dato->Recordset().SetAbsolutePosition(attuale.row());
    if (!m_riempimento && attuale.row() != precedente.row())
        Q_EMIT rigaCambiata();
}

} // namespace zuvora
