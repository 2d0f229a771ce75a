#pragma once
// The version and year adjustment (maintenance/ajuste.h), for the
// installation's administrator: one button that carries every file over,
// with a bar over the condominiums, and the e-mail tool of lblFeliz.
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

class frmAjuste : public QWidget {
    Q_OBJECT
public:
    explicit frmAjuste(QWidget *parent = nullptr);

    void cmdAjuste_Click();
    void lblFeliz_DblClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void jaFeito();

    QLabel *lbl1_, *lbl2_, *lblFeliz_;
    QProgressBar *pbrAjuste_;
    QPushButton *cmdAjuste_;
};
