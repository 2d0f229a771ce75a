#include "registers/forms/frmTTipAp.h"

#include "ui_frmTTipAp.h"

const Registro &frmTTipAp::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmTTipAp"),
        .largura = 2,
        .busca = QStringLiteral("SELECT * FROM TpAp Where codigo = '{codigo}'"),
        .existe = QStringLiteral("SELECT codigo FROM TpAp Where codigo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM TpAp"),
        .lista = QStringLiteral("SELECT * FROM TpAp ORDER BY codigo"),
        .insere = QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('{codigo}','{txtDescri}','{txtRateio}')"),
        .altera = QStringLiteral("Update TpAp Set Descri = '{txtDescri}', rateio = '{txtRateio}' Where codigo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE FROM TpAp WHERE codigo = '{codigo}'"),
        .campos = {{QStringLiteral("txtDescri"), QStringLiteral("descri")},
                   {QStringLiteral("txtRateio"), QStringLiteral("rateio"), Tipo::Numero}},
        .obrigatorios = {{QStringLiteral("txtDescri"), QStringLiteral("O Campo Descrição é Obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("descri"), QStringLiteral("rateio")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Rateio")},
        .relatorio = {QStringLiteral("SELECT codigo,descri,rateio FROM TpAp"),
                      {QStringLiteral("codigo"), QStringLiteral("descri"), QStringLiteral("rateio")},
                      QStringLiteral("RTpAp.rpt"), QStringLiteral("Tipos de Apartamentos")},
    };
    return r;
}

frmTTipAp::frmTTipAp(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmTTipAp().setupUi(this);
    carrega();
}
