#pragma once
// The pick list of receipts. The caller puts the list statement in
// session.sql and opens it with abrePesquisa(parent, "frmPesqRec", title,
// count statement); the chosen receipt's number comes back in
// session.valorPesq, a cancel in session.cancelaGrava.
#include "core/datastore.h"

#include <QDialog>
#include <memory>

namespace Ui { class frmPesqRec; }

class frmPesqRec : public QDialog {
    Q_OBJECT
public:
    explicit frmPesqRec(QWidget *parent = nullptr);
    ~frmPesqRec() override;

    void cmdPesquisar_Click();
    void cmdOk_Click();
    void reject() override;

private:
    std::unique_ptr<Ui::frmPesqRec> ui_;
    Connection cn_;
};
