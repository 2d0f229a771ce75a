#pragma once
// The about box: product, version and the support contact.
#include <QWidget>

class frmSobre : public QWidget {
    Q_OBJECT
public:
    explicit frmSobre(QWidget *parent = nullptr);
};
