#pragma once
// The signed-in user's choice of printer type, stored in Usuarios.impressora.
#include "core/datastore.h"

#include <QDialog>

class QLabel;
class QRadioButton;

class frmAtImpr : public QDialog {
    Q_OBJECT
public:
    explicit frmAtImpr(QWidget *parent = nullptr);
    ~frmAtImpr() override;

    void cmdGravar_Click();
    void cmdSair_Click();

private:
    Connection cn_;
    QLabel *lblUsuario_;
    QRadioButton *optIm_, *OptIj_, *optIl_, *optIn_;
};
