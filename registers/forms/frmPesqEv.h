#pragma once
// The pick list of events, opened while the items of a receipt are typed. The
// chosen code comes back in session.valorPesq; a cancel sets
// session.cancelaGrava and gives nothing.
#include <QDialog>

class Grade;
class QComboBox;
class QLineEdit;
class QPushButton;

class frmPesqEv : public QDialog {
    Q_OBJECT
public:
    explicit frmPesqEv(QWidget *parent = nullptr);

    void cmbColuna_LostFocus();
    void cmdPesquisar_Click();
    void cmdOk_Click();
    void done(int result) override;

private:
    QComboBox *cmbColuna_;
    QLineEdit *txtPesq_;
    QPushButton *cmdOk_;
    Grade *tdbEventos_;
    bool confirmou_ = false;
};
