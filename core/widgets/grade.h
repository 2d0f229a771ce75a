#pragma once
// The grid of the registers and search dialogs: a QTableView over a small
// in-memory table of text cells. A header click sorts on that column (as text,
// or by number for a numeric column); the ordered search finds a row on the
// sorted column. The table is a copy: it is not bound to the database.
#include <QAbstractTableModel>
#include <QStringList>
#include <QTableView>
#include <QVector>

class GradeModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit GradeModel(QObject *parent = nullptr);

    void setTitulos(const QStringList &titulos);
    // How a column sorts: as text (without regard to case), by the number its
    // text reads (codes), as a date "dd/mm/yyyy", or as an amount shown the
    // Brazilian way ("1.234,56").
    enum Tipo : char { Texto, Numero, Data, Valor };
    void setTipoColuna(int coluna, Tipo tipo);
    // A numeric column sorts and searches by the number its text reads (codes).
    void setColunaNumerica(int coluna, bool numerica = true) { setTipoColuna(coluna, numerica ? Numero : Texto); }

    void limpa();
    void adiciona(const QStringList &linha);
    void insere(int linha, const QStringList &celulas);
    void remove(int linha);
    void altera(int linha, const QStringList &celulas);
    QString texto(int linha, int coluna) const;
    QStringList linha(int linha) const { return linhas_.value(linha); }
    // The first row whose cell of the column is exactly the text; -1 when none.
    int linhaDe(int coluna, const QString &texto) const;
    // The place where a row would go to keep the order of the sorted column.
    int lugarOrdenado(const QStringList &celulas) const;

    int colunaOrdenada() const { return colunaOrdenada_; }
    // Ordered search on a column (the table is sorted on it first). A text,
    // date or amount column finds the first row that begins with the text,
    // without regard to case; a numeric column the row whose number is the
    // value. -1: not found.
    int procura(int coluna, const QString &texto);
    int procuraNumero(int coluna, double valor);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    bool menor(const QStringList &a, const QStringList &b, int coluna) const;

    QStringList titulos_;
    QVector<Tipo> tipos_;
    QVector<QStringList> linhas_;
    int colunaOrdenada_ = -1;
    Qt::SortOrder ordem_ = Qt::AscendingOrder;
};

class Grade : public QTableView {
    Q_OBJECT
public:
    explicit Grade(QWidget *parent = nullptr);

    GradeModel *modelo() const { return modelo_; }
    int linhas() const { return modelo_->rowCount(); }
    QString texto(int linha, int coluna) const { return modelo_->texto(linha, coluna); }
    int linhaAtual() const;
    // Moves the current row without telling anyone (the form positions the grid itself).
    void posiciona(int linha);
    // Column widths after a fill: wide enough for their titles and contents.
    void ajustaColunas();

signals:
    // The user moved to a row (a click, the keyboard): the system's RowColChange.
    void linhaMudou(int linha);
    // A double click on a row.
    void linhaEscolhida(int linha);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    GradeModel *modelo_;
    bool silencio_ = false;
    bool avisado_ = false;
};
