#pragma once
// The splash window: product and version, closed by a key or a click. No path
// of the program opens it.
#include <QWidget>

class frmSplash : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};
