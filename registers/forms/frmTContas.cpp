#include "registers/forms/frmTContas.h"

#include "core/prompter.h"
#include "ui_frmTContas.h"

#include <QRegularExpressionValidator>

const Registro &frmTContas::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmTContas"),
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM Contas Where Codigo = {codigo}"),
        .existe = QStringLiteral("SELECT codigo FROM Contas Where Codigo = {codigo}"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Contas"),
        .lista = QStringLiteral("SELECT * FROM Contas ORDER BY codigo"),
        .insere = QStringLiteral("INSERT INTO Contas(codigo,nbanco,nagencia,codbco,codagc,nrconta) VALUES({codigo},"
                                 "\"{txtNbco}\",\"{txtNagc}\",'{txtCodBco}','{txtCodAg}','{txtNrcc}')"),
        .altera = QStringLiteral("Update Contas Set nbanco = \"{txtNbco}\",NAgencia = \"{txtNagc}\",codbco = '{txtCodBco}',"
                                 "codagc = '{txtCodAg}',nrconta = '{txtNrcc}' Where codigo = {codigo}"),
        .apaga = QStringLiteral("DELETE FROM Contas WHERE codigo = {codigo}"),
        .campos = {{QStringLiteral("txtNbco"), QStringLiteral("nbanco")},
                   {QStringLiteral("txtNagc"), QStringLiteral("nagencia")},
                   {QStringLiteral("txtCodBco"), QStringLiteral("codbco")},
                   {QStringLiteral("txtCodAg"), QStringLiteral("codagc")},
                   {QStringLiteral("txtNrcc"), QStringLiteral("nrconta")}},
        .obrigatorios = {{QStringLiteral("txtNbco"), QStringLiteral("O campo Banco é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nbanco"), QStringLiteral("nagencia"),
                         QStringLiteral("codbco"), QStringLiteral("codagc"), QStringLiteral("nrconta")},
        .titulosGrade = {QStringLiteral("Cod."), QStringLiteral("Banco"), QStringLiteral("Agência"),
                         QStringLiteral("Cod.Bco."), QStringLiteral("Cod.Ag."), QStringLiteral("Nr.Conta")},
        .relatorio = {QStringLiteral("SELECT * FROM Contas"),
                      {QStringLiteral("Codigo"), QStringLiteral("Nbanco"), QStringLiteral("NAgencia"),
                       QStringLiteral("CodBco"), QStringLiteral("CodAgc"), QStringLiteral("NrConta")},
                      QStringLiteral("Contas.rpt"), QStringLiteral("Tabela de Contas")},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
        .abandono = QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."),
        .grade = QStringLiteral("tdbContas"),
    };
    return r;
}

frmTContas::frmTContas(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmTContas ui;
    ui.setupUi(this);
    // Bank, branch and account numbers are digits only.
    for (QLineEdit *e : {ui.txtCodBco, ui.txtCodAg, ui.txtNrcc})
        e->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), e));
    carrega();
}

bool frmTContas::codigoRecusado(bool achou)
{
    if (!(achou && novo_))
        return false;
    MsgBox(QStringLiteral("Código Já Cadastrado, Utilize Outro !"), vbExclamation, QStringLiteral("Atenção..."));
    return true;
}
