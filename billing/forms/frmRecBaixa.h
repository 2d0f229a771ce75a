#pragma once
// Settlement, alteration, deletion and copy of one receipt, found by its
// number or in the list of the saved filter.
#include "billing/baixa.h"
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmRecBaixa; }

class frmRecBaixa : public QWidget {
    Q_OBJECT
public:
    explicit frmRecBaixa(QWidget *parent = nullptr);
    ~frmRecBaixa() override;

    void txtCodRec_LostFocus();
    void tdbRecto_LostFocus();
    void cmdPesquisar_Click();
    void cmdFiltro_Click();
    void cmdBaixar_Click();
    void cmdGravar_Click();
    void cmdApagar_Click();
    void cmdImprimir_Click();
    void cmdCancelar_Click();
    void cmdLgrid_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // Mode 1: no receipt; mode 2: a receipt shown.
    void trocaModo(int modo);
    void limpa();
    bool mostra(const QString &numero);
    ReciboEditado editado() const;
    // Shows the findings of a save in frmErros.
    void mostraErros(const std::vector<ErroGravacao> &erros);
    // The alteration; `silenciosa` saves without the question (before a copy).
    bool grava(bool silenciosa);

    std::unique_ptr<Ui::frmRecBaixa> ui_;
    Connection cn_;
    int modo_ = 1;
    QString rectoOriginal_;
    QString rectoPerguntado_;  // a date of tdbRecto refused for its findings
};
