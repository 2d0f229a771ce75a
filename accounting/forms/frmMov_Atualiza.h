#pragma once
// The balance update: turns the journal of a base month into the monthly
// figures of Plano, from that month to December (AtualizaSaldos), with one bar
// for the passes and one for the pass at work.
#include "core/datastore.h"

#include <QElapsedTimer>
#include <QWidget>

class DateField;
class QLabel;
class QProgressBar;
class QPushButton;

class frmMov_Atualiza : public QWidget {
    Q_OBJECT
public:
    explicit frmMov_Atualiza(QWidget *parent = nullptr);
    ~frmMov_Atualiza() override;

    void cmdAtualiza_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void descarrega();

    Connection cn_;
    bool alterado_ = false;
    QElapsedTimer pintura_;
    DateField *tdbAnomesfim_;
    QLabel *lblProgresso_;
    QProgressBar *pbrProgressoG_, *pbrprogresso_;
    QPushButton *cmdAtualiza_, *cmdSair_;
};
