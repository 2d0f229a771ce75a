#pragma once
// The settings of a month's emission (the one row of Parametros) and the start
// of the emission: the automatic run here, or the manual screen frmRecibos.
#include "core/datastore.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmParametro;
}
struct ParametrosEmissao;

class frmParametro : public QDialog {
    Q_OBJECT
public:
    explicit frmParametro(QWidget *parent = nullptr);
    ~frmParametro() override;

    void cmdGravar_Click();
    void cmdInicia_Click();
    void cmdSair_Click();

private:
    void mostra(const ParametrosEmissao &p);
    ParametrosEmissao lidos() const;
    bool confereCampos();
    bool grava(bool focoNoRecibo);
    void emiteAutomatico();

    std::unique_ptr<Ui::frmParametro> ui_;
    Connection cn_;
};
