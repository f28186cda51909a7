#include "shell/host/ElenchiFile.h"

#include "shell/disegni/Disegni.h"
#include "shell/host/Volumi.h"

#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QSize MisuraIcona{14, 14}; // pixels
constexpr int Rientro = 10;
constexpr auto Ordine = QDir::Name | QDir::IgnoreCase | QDir::LocaleAware;

// The folder and those above it, from the root down.
QStringList catena(const QString &cartella) {
    QStringList esito;
    for (QDir dir(cartella);;) {
        esito.prepend(dir.absolutePath());
        const QString sopra = QFileInfo(dir.absolutePath()).path();
        if (sopra == dir.absolutePath())
            return esito;
        dir.setPath(sopra);
    }
}

QTreeWidgetItem *voceCartella(const QString &percorso) {
    const QString nome = QFileInfo(percorso).fileName();
    auto *voce = new QTreeWidgetItem({nome.isEmpty() ? QDir::toNativeSeparators(percorso) : nome});
    voce->setData(0, Qt::UserRole, percorso);
    voce->setIcon(0, icona(Disegno::Cartella));
    return voce;
}

} // namespace

DriveListBox::DriveListBox(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setIconSize(MisuraIcona);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    Refresh();
    connect(this, &QComboBox::activated, this, &DriveListBox::cambiato);
}

QString DriveListBox::Drive() const {
    return currentData().toString();
}

void DriveListBox::setDrive(const QString &cartella) {
    QStringList radici;
    for (int i = 0; i < count(); ++i)
        radici << itemData(i).toString();
    setCurrentIndex(static_cast<int>(radici.indexOf(volumeDi(cartella, radici))));
}

void DriveListBox::Refresh() {
    const QString scelta = Drive();
    clear();
    const QStringList volumi = volumiMontati();
    for (const QString &radice : volumi)
        addItem(icona(Disegno::Unita), radice, radice);
    setCurrentIndex(std::max(0, findData(scelta)));
}

void DriveListBox::showPopup() {
    Refresh();
    QComboBox::showPopup();
}

DirListBox::DirListBox(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    header()->hide();
    setColumnCount(1);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(Rientro);
    setIconSize(MisuraIcona);
    setUniformRowHeights(true);
    setTabKeyNavigation(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *voce) { entra(voce); });
}

bool DirListBox::setPath(const QString &cartella) {
    const QFileInfo info(QDir::cleanPath(QDir::fromNativeSeparators(cartella)));
    if (cartella.isEmpty() || !info.isDir())
        return false;
    const QString nuovo = QDir::toNativeSeparators(info.absoluteFilePath());
    const bool altra = nuovo != m_percorso;
    m_percorso = nuovo;
    Refresh();
    if (altra)
        Q_EMIT cambiata();
    return true;
}

void DirListBox::Refresh() {
    clear();
    m_corrente = nullptr;
    const QStringList cartelle = catena(QDir::fromNativeSeparators(m_percorso));
    for (const QString &cartella : cartelle) {
        QTreeWidgetItem *voce = voceCartella(cartella);
        if (m_corrente == nullptr)
            addTopLevelItem(voce);
        else
            m_corrente->addChild(voce);
        m_corrente = voce;
    }
    const QDir qui(cartelle.constLast());
    QList<QTreeWidgetItem *> dentro;
    const QStringList nomi = qui.entryList(QDir::Dirs | QDir::NoDotAndDotDot, Ordine);
    for (const QString &nome : nomi)
        dentro << voceCartella(qui.filePath(nome));
    m_corrente->addChildren(dentro);
    expandAll();
    setCurrentItem(m_corrente);
    // The folders below are what the user goes on with.
    scrollToItem(m_corrente, PositionAtTop);
}

int DirListBox::ListCount() const {
    return m_corrente == nullptr ? 0 : m_corrente->childCount();
}

QString DirListBox::List(int indice) const {
    const QTreeWidgetItem *voce = m_corrente == nullptr ? nullptr : m_corrente->child(indice);
    return voce == nullptr ? QString() : QDir::toNativeSeparators(voce->data(0, Qt::UserRole).toString());
}

void DirListBox::entra(const QTreeWidgetItem *voce) {
    if (voce != nullptr)
        setPath(voce->data(0, Qt::UserRole).toString());
}

void DirListBox::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        entra(currentItem());
    else if (e->key() == Qt::Key_Backspace && m_corrente != nullptr)
        entra(m_corrente->parent());
    else
        Controllo::keyPressEvent(e);
}

FileListBox::FileListBox(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemClicked, this, [this] {
        if (!m_segnalato)
            Q_EMIT cliccato();
    });
}

void FileListBox::setPattern(const QString &modello) {
    m_modelli = modello.split(u';', Qt::SkipEmptyParts);
    Refresh();
}

void FileListBox::setPath(const QString &cartella) {
    m_percorso = QDir::toNativeSeparators(QDir::cleanPath(QDir::fromNativeSeparators(cartella)));
    Refresh();
}

void FileListBox::Refresh() {
    m_riempimento = true;
    clear();
    if (!m_percorso.isEmpty())
        addItems(QDir(QDir::fromNativeSeparators(m_percorso)).entryList(m_modelli, QDir::Files, Ordine));
    setCurrentRow(-1);
    m_riempimento = false;
}

QString FileListBox::List(int indice) const {
    const QListWidgetItem *voce = item(indice);
    return voce == nullptr ? QString() : voce->text();
}

QString FileListBox::percorso(int indice) const {
    const QString nome = List(indice);
    if (nome.isEmpty())
        return {};
    return QDir::toNativeSeparators(QDir(QDir::fromNativeSeparators(m_percorso)).filePath(nome));
}

void FileListBox::mousePressEvent(QMouseEvent *e) {
    const int prima = currentRow();
    Controllo::mousePressEvent(e);
    m_segnalato = currentRow() != prima;
}

void FileListBox::currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) {
    Controllo::currentChanged(attuale, precedente);
    if (!m_riempimento && attuale.isValid())
        Q_EMIT cliccato();
}

} // namespace zuvora
