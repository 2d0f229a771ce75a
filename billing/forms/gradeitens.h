#pragma once
// The item grid of a receipt (tdgItens of frmRecibos and frmRecBaixa): five
// columns "Cod.", "Descrição", "Compl.", "Ref.", "Valor", at most ten items,
// and one empty row at the end to type a new one. Leaving a cell applies the
// rules of the column: a code must be an event (its name fills the
// description), a reference times the event's value gives the amount, and the
// total follows every change.
#include "billing/recibo.h"
#include "core/money.h"

#include <QTableWidget>
#include <vector>

class Connection;

class GradeItens : public QTableWidget {
    Q_OBJECT
public:
    explicit GradeItens(QWidget *parent = nullptr);

    // The connection the event lookups run on (the form's own).
    void setConexao(Connection *con) { con_ = con; }

    void limpa();
    // Shows the rows, each with its event's name as description.
    void mostra(const std::vector<LinhaGrade> &linhas);
    // The rows as typed, without the empty row at the end.
    std::vector<LinhaGrade> linhas() const;
    // Grid adjustment (cmdLgrid): rows of no code or no amount go.
    void ajusta();
    // The sum of the amounts shown.
    Money total() const;

signals:
    void totalMudou(Money total);
    // A row's code was left empty: the clerk has finished typing items.
    void itensTerminados();

private:
    void celulaMudou(QTableWidgetItem *item);
    void poeLinha(int linha, const LinhaGrade &l, const QString &descricao);
    void garanteLinhaVazia();
    void poe(int linha, int coluna, const QString &texto);
    QString descricao(const QString &codigo) const;

    Connection *con_ = nullptr;
    bool mudando_ = false;
};
