#pragma once
// The users of the installation (table Usuarios of the system file). Only the
// administrator creates users, deletes them and gives rights; any other user
// may open a record and change its name, printer and password.
#include "registers/forms/recordform.h"

#include <memory>

class QCheckBox;
namespace Ui { class frmUsuarios; }

class frmUsuarios : public RecordForm {
    Q_OBJECT
public:
    explicit frmUsuarios(QWidget *parent = nullptr);
    ~frmUsuarios() override;
    static const Registro &descricao();

    void chkBdcon_Click();
    void chkCfcon_Click();
    void cmdTrocasen_Click();
    void cmdPesqCli_Click();
    void mskCodcli_LostFocus();

protected:
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void carregaExtras(const Recordset &rs) override;
    QString chaveImpressao() const override;
    RowFiller linhaRelatorio() const override;
    QString perguntaExclusao(const QString &codigo) const override;
    void modoMudou(int modo) override;
    bool codigoRecusado(bool achou) override;
    void inclusaoRecusada() override;
    void antesDasRegras() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool administrador() const;
    QString empatValor() const;
    QList<QCheckBox *> dependentesBd() const;
    QList<QCheckBox *> dependentesCf() const;
    // A dependent box is enabled only while its master (Consulta) is checked.
    void aplicaDependencia(QCheckBox *mestre, const QList<QCheckBox *> &dependentes, bool desmarca);

    std::unique_ptr<Ui::frmUsuarios> ui;
};
