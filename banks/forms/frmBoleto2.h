#pragma once
// The statement the slips carry, as it stands in the session's buffer: a
// window to read it, with no commands of its own.
#include <QWidget>
#include <memory>

namespace Ui {
class frmBoleto2;
}

class frmBoleto2 : public QWidget {
    Q_OBJECT
public:
    explicit frmBoleto2(QWidget *parent = nullptr);
    ~frmBoleto2() override;

private:
    std::unique_ptr<Ui::frmBoleto2> ui_;
};
