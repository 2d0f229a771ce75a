#include "core/widgets/grade.h"

#include "core/conversions.h"
#include "core/val.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <algorithm>

GradeModel::GradeModel(QObject *parent) : QAbstractTableModel(parent) {}

void GradeModel::setTitulos(const QStringList &titulos)
{
    beginResetModel();
    titulos_ = titulos;
    tipos_.resize(titulos.size());
    endResetModel();
}

void GradeModel::setTipoColuna(int coluna, Tipo tipo)
{
    if (coluna >= tipos_.size())
        tipos_.resize(coluna + 1);
    tipos_[coluna] = tipo;
}

void GradeModel::limpa()
{
    beginResetModel();
    linhas_.clear();
    endResetModel();
}

void GradeModel::adiciona(const QStringList &linha) { insere(int(linhas_.size()), linha); }

void GradeModel::insere(int linha, const QStringList &celulas)
{
    linha = std::clamp(linha, 0, int(linhas_.size()));
    beginInsertRows(QModelIndex(), linha, linha);
    linhas_.insert(linha, celulas);
    endInsertRows();
}

void GradeModel::remove(int linha)
{
    if (linha < 0 || linha >= linhas_.size())
        return;
    beginRemoveRows(QModelIndex(), linha, linha);
    linhas_.removeAt(linha);
    endRemoveRows();
}

void GradeModel::altera(int linha, const QStringList &celulas)
{
    if (linha < 0 || linha >= linhas_.size())
        return;
    linhas_[linha] = celulas;
    emit dataChanged(index(linha, 0), index(linha, columnCount() - 1));
}

QString GradeModel::texto(int linha, int coluna) const { return linhas_.value(linha).value(coluna); }

int GradeModel::linhaDe(int coluna, const QString &texto) const
{
    for (int r = 0; r < linhas_.size(); ++r)
        if (linhas_[r].value(coluna) == texto)
            return r;
    return -1;
}

bool GradeModel::menor(const QStringList &a, const QStringList &b, int coluna) const
{
    const QString &x = a.value(coluna), &y = b.value(coluna);
    switch (tipos_.value(coluna)) {
    case Numero:
        return val(x) < val(y);
    case Data:
        return dateFromText(x) < dateFromText(y);   // an empty cell (no date) first
    case Valor: {
        auto valor = [](QString t) { return val(VirgulaPonto(t.remove(u'.'))); };
        return valor(x) < valor(y);
    }
    case Texto:
        break;
    }
    return QString::compare(x, y, Qt::CaseInsensitive) < 0;
}

int GradeModel::lugarOrdenado(const QStringList &celulas) const
{
    const int coluna = colunaOrdenada_ < 0 ? 0 : colunaOrdenada_;
    auto pos = ordem_ == Qt::AscendingOrder
        ? std::upper_bound(linhas_.begin(), linhas_.end(), celulas,
                           [&](const QStringList &a, const QStringList &b) { return menor(a, b, coluna); })
        : std::upper_bound(linhas_.begin(), linhas_.end(), celulas,
                           [&](const QStringList &a, const QStringList &b) { return menor(b, a, coluna); });
    return int(pos - linhas_.begin());
}

void GradeModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount())
        return;
    emit layoutAboutToBeChanged();
    std::stable_sort(linhas_.begin(), linhas_.end(), [&](const QStringList &a, const QStringList &b) {
        return order == Qt::AscendingOrder ? menor(a, b, column) : menor(b, a, column);
    });
    colunaOrdenada_ = column;
    ordem_ = order;
    emit layoutChanged();
}

int GradeModel::procura(int coluna, const QString &texto)
{
    if (tipos_.value(coluna) == Numero)
        return procuraNumero(coluna, val(texto));
    if (colunaOrdenada_ != coluna || ordem_ != Qt::AscendingOrder)
        sort(coluna, Qt::AscendingOrder);
    if (tipos_.value(coluna) != Texto) {
        // Part of a date or an amount has no place in their order: the first
        // row, in that order, whose text begins with it.
        for (int r = 0; r < linhas_.size(); ++r)
            if (linhas_[r].value(coluna).startsWith(texto, Qt::CaseInsensitive))
                return r;
        return -1;
    }
    QStringList alvo;
    for (int c = 0; c <= coluna; ++c)
        alvo << QString();
    alvo[coluna] = texto;
    auto pos = std::lower_bound(linhas_.begin(), linhas_.end(), alvo,
                                [&](const QStringList &a, const QStringList &b) { return menor(a, b, coluna); });
    if (pos != linhas_.end() && pos->value(coluna).startsWith(texto, Qt::CaseInsensitive))
        return int(pos - linhas_.begin());
    return -1;
}

int GradeModel::procuraNumero(int coluna, double valor)
{
    setColunaNumerica(coluna, true);
    if (colunaOrdenada_ != coluna || ordem_ != Qt::AscendingOrder)
        sort(coluna, Qt::AscendingOrder);
    auto pos = std::lower_bound(linhas_.begin(), linhas_.end(), valor,
                                [&](const QStringList &a, double v) { return val(a.value(coluna)) < v; });
    if (pos != linhas_.end() && val(pos->value(coluna)) == valor)
        return int(pos - linhas_.begin());
    return -1;
}

int GradeModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(linhas_.size()); }
int GradeModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(titulos_.size()); }

QVariant GradeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return texto(index.row(), index.column());
    if (role == Qt::TextAlignmentRole
        && (tipos_.value(index.column()) == Numero || tipos_.value(index.column()) == Valor))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant GradeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return titulos_.value(section);
    return {};
}

Grade::Grade(QWidget *parent) : QTableView(parent), modelo_(new GradeModel(this))
{
    setModel(modelo_);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSortingEnabled(true);  // a header click sorts on its column
    horizontalHeader()->setSortIndicatorShown(false);

    // Rows that move because the table changed (a sort, a delete) are no move of the user.
    auto cala = [this] { silencio_ = true; };
    auto fala = [this] { silencio_ = false; };
    connect(modelo_, &QAbstractItemModel::rowsAboutToBeRemoved, this, cala);
    connect(modelo_, &QAbstractItemModel::rowsRemoved, this, fala);
    connect(modelo_, &QAbstractItemModel::rowsAboutToBeInserted, this, cala);
    connect(modelo_, &QAbstractItemModel::rowsInserted, this, fala);
    connect(modelo_, &QAbstractItemModel::layoutAboutToBeChanged, this, cala);
    connect(modelo_, &QAbstractItemModel::layoutChanged, this, fala);
    connect(modelo_, &QAbstractItemModel::modelAboutToBeReset, this, cala);
    connect(modelo_, &QAbstractItemModel::modelReset, this, fala);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &atual, const QModelIndex &) {
                if (silencio_ || !atual.isValid())
                    return;
                avisado_ = true;
                emit linhaMudou(atual.row());
            });
    // A click on the row that is current already is a change for the user too.
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &index) {
        if (!avisado_ && index.isValid())
            emit linhaMudou(index.row());
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.isValid())
            emit linhaEscolhida(index.row());
    });
}

void Grade::mousePressEvent(QMouseEvent *event)
{
    avisado_ = false;
    QTableView::mousePressEvent(event);
}

int Grade::linhaAtual() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

void Grade::posiciona(int linha)
{
    silencio_ = true;
    if (linha < 0 || linha >= modelo_->rowCount()) {
        clearSelection();
        setCurrentIndex(QModelIndex());
    } else {
        setCurrentIndex(modelo_->index(linha, 0));
        scrollTo(modelo_->index(linha, 0));
    }
    silencio_ = false;
}

void Grade::ajustaColunas()
{
    resizeColumnsToContents();
    for (int c = 0; c < modelo_->columnCount(); ++c) {
        const int titulo = horizontalHeader()->fontMetrics().horizontalAdvance(modelo_->headerData(c, Qt::Horizontal).toString()) + 24;
        setColumnWidth(c, std::min(std::max(columnWidth(c) + 8, titulo), 360));
    }
    horizontalHeader()->setStretchLastSection(true);
}
