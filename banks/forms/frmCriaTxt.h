#pragma once
// The monthly statement left as a text file: month, model, extra lines and
// the file's folder and name.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmCriaTxt;
}

class frmCriaTxt : public QWidget {
    Q_OBJECT
public:
    explicit frmCriaTxt(QWidget *parent = nullptr);
    ~frmCriaTxt() override;

private:
    void cmdPastatxt_Click();
    void cmdGerarTexto_Click();

    std::unique_ptr<Ui::frmCriaTxt> ui_;
    Connection cn_;
};
