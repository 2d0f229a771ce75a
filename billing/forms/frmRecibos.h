#pragma once
// The manual emission: one apartment's receipt at a time, proposed from the
// month's parameters, changed by the clerk, saved, printed; or the
// rectification of open receipts. Opened only by frmParametro.
#include "billing/emissao.h"
#include "billing/parametros.h"
#include "core/datastore.h"
#include "core/money.h"

#include <QStringList>
#include <QWidget>
#include <memory>

namespace Ui {
class frmRecibos;
}
struct AptoRecibo;

class frmRecibos : public QWidget {
    Q_OBJECT
public:
    explicit frmRecibos(QWidget *parent = nullptr);
    ~frmRecibos() override;

    void cmdGravar_Click();
    void cmdCancelar_Click();
    void cmdAdados_Click();
    void cmdPula_Click();
    void cmdInterromper_Click();
    void cmdLgrid_Click();
    void cmdPesqEv_Click();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void comeca();
    void proposta();
    void proximo();
    bool escolheApto();
    void escolheRecibo();
    void mostraApto(const AptoRecibo &a);
    void mostraTotal();
    void dadosHabilitados(bool sim);
    void tdbRefer_LostFocus();
    void excluiItem();
    void imprime(const QString &numero);
    void fecha();

    std::unique_ptr<Ui::frmRecibos> ui_;
    Connection cn_;
    ParametrosEmissao p_;
    bool novo_ = true;
    bool iniciado_ = false;
    bool fechado_ = false;
    QString numero_;      // the receipt being issued (new) or shown (rectification)
    QString apto_;        // the current apartment
    SelecaoEmissao selecao_;
    QStringList codigos_; // the list of apartments, when not selective
    int indice_ = 0;
    Money total_;
};
