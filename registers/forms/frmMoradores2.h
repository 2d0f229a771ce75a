#pragma once
// The residents of one unit, read only. The caller puts the unit's code in
// session.valorPesq before it opens the dialog.
#include <QDialog>

class frmMoradores2 : public QDialog {
    Q_OBJECT
public:
    explicit frmMoradores2(QWidget *parent = nullptr);
};
