#pragma once
// The entries of the active year's journal, to choose one for frmMov. The
// table comes in session.tabPesq, the title in session.tituloPesq; the chosen
// number goes back in session.valorPesq (session.cancelaGrava when none).
#include "core/datastore.h"

#include <QDialog>

class Grade;
class QComboBox;
class QLineEdit;
class QPushButton;

class frmMovPesq : public QDialog {
    Q_OBJECT
public:
    explicit frmMovPesq(QWidget *parent = nullptr);
    ~frmMovPesq() override;

    void cmdPesquisar_Click();
    void cmdOk_Click();
    void cmdSair_Click();

protected:
    void done(int result) override;

private:
    Connection cn_;
    QComboBox *cmbColuna_;
    QLineEdit *txtPesq_;
    QPushButton *cmdOk_;
    Grade *tdbPesq_;
    int colunaPesq_ = 0;
    bool escolheu_ = false;
};
