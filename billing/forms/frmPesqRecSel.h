#pragma once
// The pick list of units with their last emission, for the selective flow.
// The caller puts its statement (codigo, nome, nrecibo, nemis, demis of Aptos)
// in session.sql and opens it with abrePesquisa(parent, "frmPesqRecSel", title,
// ""); the unit's code comes back in session.valorPesq, a cancel in cancelaGrava.
#include "core/datastore.h"

#include <QDialog>
#include <memory>

namespace Ui { class frmPesqRecSel; }

class frmPesqRecSel : public QDialog {
    Q_OBJECT
public:
    explicit frmPesqRecSel(QWidget *parent = nullptr);
    ~frmPesqRecSel() override;

    void cmdPesquisar_Click();
    void cmdOk_Click();
    void reject() override;

private:
    std::unique_ptr<Ui::frmPesqRecSel> ui_;
    Connection cn_;
};
