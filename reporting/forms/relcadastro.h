#pragma once
// The body of the five printed lists of the registers (frmRAptos, frmRelEnd,
// frmRTelefonica, frmMoradPa, frmVecPa): a frame of order options, a title
// field where the form has one, cmdImprimir and cmdSair. Each form gives its
// layout and its description (reporting/listas.h).
#include "core/datastore.h"
#include "reporting/listas.h"

#include <QWidget>

class QLineEdit;

class RelatorioCadastroForm : public QWidget {
    Q_OBJECT
public:
    ~RelatorioCadastroForm() override;

    void cmdImprimir_Click();

protected:
    RelatorioCadastroForm(const RelatorioCadastro &relatorio, QWidget *parent);
    // After setupUi: the first order is chosen, the buttons answer, the form
    // takes its connection.
    void liga();
    void closeEvent(QCloseEvent *event) override;

private:
    const RelatorioCadastro &relatorio_;
    Connection cn_;
    QLineEdit *txtTitu_ = nullptr;
};
