#include "registers/forms/frmTEventos.h"

#include "core/prompter.h"
#include "core/startup.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/numberfield.h"
#include "ui_frmTEventos.h"

#include <QCheckBox>

QString nomeTipoEvento(const QString &letra)
{
    const QString l = letra.trimmed().toUpper();
    if (l == QLatin1String("H"))
        return QStringLiteral("Taxa Condominial");
    if (l == QLatin1String("R"))
        return QStringLiteral("Receita");
    if (l == QLatin1String("T"))
        return QStringLiteral("Terceiros");
    if (l == QLatin1String("D"))
        return QStringLiteral("Desconto");
    return l;
}

const Registro &frmTEventos::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmTEventos"),
        .largura = 3,
        .busca = QStringLiteral("SELECT * FROM Eventos Where Codigo = '{codigo}'"),
        .existe = QStringLiteral("SELECT * FROM Eventos Where Codigo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Eventos"),
        .lista = QStringLiteral("SELECT * FROM Eventos ORDER BY codigo"),
        .insere = QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('{codigo}',\"{txtnome}\","
                                 "'{optTipo}',{chkIr},{chkrefer},'{tdbValor}')"),
        .altera = QStringLiteral("Update Eventos Set nome = \"{txtnome}\",tipo = '{optTipo}',ir = {chkIr},"
                                 "refer = {chkrefer},valor = '{tdbValor}' Where codigo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE * FROM Eventos WHERE codigo = '{codigo}'"),
        .campos = {{QStringLiteral("txtnome"), QStringLiteral("nome")},
                   {QStringLiteral("optTipo"), QStringLiteral("tipo"), Tipo::Opcao,
                    {{QStringLiteral("optH"), QStringLiteral("H")}, {QStringLiteral("optR"), QStringLiteral("R")},
                     {QStringLiteral("optT"), QStringLiteral("T")}, {QStringLiteral("optD"), QStringLiteral("D")}}},
                   {QStringLiteral("chkIr"), QStringLiteral("ir"), Tipo::Booleano},
                   {QStringLiteral("chkrefer"), QStringLiteral("refer"), Tipo::Booleano},
                   {QStringLiteral("tdbValor"), QStringLiteral("valor"), Tipo::Numero}},
        .obrigatorios = {{QStringLiteral("txtnome"), QStringLiteral("O campo nome é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("tipo")},
        .titulosGrade = {QStringLiteral("Cod."), QStringLiteral("Evento"), QStringLiteral("Tipo")},
        .relatorio = {QStringLiteral("SELECT codigo,nome,tipo FROM Eventos ORDER BY codigo"),
                      {QStringLiteral("Codigo"), QStringLiteral("Nome"), QStringLiteral("Tipo")},
                      QStringLiteral("Eventos.rpt"), QStringLiteral("Tabela de Eventos")},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
    };
    return r;
}

frmTEventos::frmTEventos(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmTEventos ui;
    ui.setupUi(this);
    chkrefer_ = ui.chkrefer;
    tdbValor_ = ui.tdbValor;
    connect(chkrefer_, &QCheckBox::clicked, this, &frmTEventos::chkrefer_Click);
    carrega();
}

// "000" is no code.
QString frmTEventos::normalizaCodigo(const QString &masked) const
{
    const QString codigo = RecordForm::normalizaCodigo(masked);
    return codigo == QLatin1String("000") ? QString() : codigo;
}

bool frmTEventos::codigoRecusado(bool achou)
{
    if (!(achou && novo()))
        return false;
    MsgBox(QStringLiteral("Código Já Cadastrado, Utilize Outro !"), vbExclamation, QStringLiteral("Atenção..."));
    return true;
}

void frmTEventos::inclusaoRecusada() { mskCodigo_->clear(); }

bool frmTEventos::podeGravar()
{
    if (TemDireito(QStringLiteral("Cfalt")))
        return true;
    MsgBox(QStringLiteral("Usuário não autorizado a alterar eventos !"), vbExclamation, QStringLiteral("Atenção..."));
    return false;
}

// The unit value means something only for an event by quantity.
void frmTEventos::antesDasRegras()
{
    if (!chkrefer_->isChecked())
        tdbValor_->setValor(0);
}

void frmTEventos::chkrefer_Click()
{
    tdbValor_->setEnabled(chkrefer_->isChecked());
    if (chkrefer_->isChecked())
        tdbValor_->setFocus();
}

void frmTEventos::modoMudou(int modo)
{
    if (modo == 1 && mskCodigo_->textoMascarado() == QLatin1String("000"))
        mskCodigo_->clear();
    if (modo != 1)
        tdbValor_->setEnabled(chkrefer_->isChecked());
}

QStringList frmTEventos::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[2] = nomeTipoEvento(cells[2]);
    return cells;
}

RowFiller frmTEventos::linhaRelatorio() const
{
    return [](const Recordset &r) {
        return QStringList{r[QStringLiteral("codigo")].text(), r[QStringLiteral("nome")].text(),
                           r[QStringLiteral("tipo")].text()};
    };
}
