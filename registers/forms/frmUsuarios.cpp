#include "registers/forms/frmUsuarios.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/abrepesquisa.h"
#include "core/forms/frmTrocasen.h"
#include "core/prompter.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/val.h"
#include "core/validators.h"
#include "core/widgets/campos.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmUsuarios.h"

#include <QDate>

namespace {
const char *const kDireitos[9] = {"Bdcon", "Bdadi", "Bdexc", "Bdalt", "Cfcon", "Cfadi", "Cfexc", "Cfalt", "Cfbai"};

QList<Campo> camposDoUsuario()
{
    QList<Campo> c{{QStringLiteral("txtnome"), QStringLiteral("nome")},
                   {QStringLiteral("lblDsenha"), QStringLiteral("dsenha")},
                   {QStringLiteral("impressora"), QStringLiteral("impressora"), Tipo::Opcao,
                    {{QStringLiteral("optIm"), QStringLiteral("M")}, {QStringLiteral("OptIj"), QStringLiteral("J")},
                     {QStringLiteral("optIl"), QStringLiteral("L")}, {QStringLiteral("optIn"), QStringLiteral("S")}}}};
    for (const char *d : kDireitos)
        c << Campo{QStringLiteral("chk") + QString::fromLatin1(d), QString::fromLatin1(d).toLower(), Tipo::Booleano};
    return c;
}

QString direitos(const char *formato)
{
    QStringList l;
    for (const char *d : kDireitos)
        l << QString::fromLatin1(formato).arg(QString::fromLatin1(d));
    return l.join(u',');
}
}

const Registro &frmUsuarios::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmUsuarios"),
        .conexao = Conexao::Sistema,
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM usuarios Where Codigo = {codigo}"),
        .existe = QStringLiteral("SELECT codigo FROM usuarios Where Codigo = {codigo}"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Usuarios"),
        .lista = QStringLiteral("SELECT * FROM Usuarios ORDER BY codigo"),
        .insere = QStringLiteral("INSERT INTO usuarios(codigo,nome,senha,impressora,dsenha,empat,bdcon,bdadi,bdexc,bdalt,"
                                 "cfcon,cfadi,cfexc,cfalt,cfbai) VALUES( '{codigo}',\"{txtnome}\",\"{senha}\","
                                 "'{impressora}','{hoje}','{empat}',")
            + direitos("{chk%1}") + u')',
        .altera = QStringLiteral("Update usuarios Set nome = \"{txtnome}\",impressora = '{impressora}',empat = '{empat}',")
            + direitos("%1 = {chk%1}") + QStringLiteral(" Where codigo = {codigo}"),
        .apaga = QStringLiteral("DELETE FROM Usuarios WHERE codigo = {codigo}"),
        .campos = camposDoUsuario(),
        .calculados = {QStringLiteral("senha"), QStringLiteral("hoje"), QStringLiteral("empat")},
        .obrigatorios = {{QStringLiteral("txtnome"), QStringLiteral("O nome do usuário é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Nome")},
        .relatorio = {QStringLiteral("SELECT Usuarios.*,Clientes.Nome FROM Usuarios INNER JOIN Clientes ON Usuarios.Empat = "
                                     "Clientes.codigo WHERE Usuarios.nome = '{chave}'"),
                      {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("data"), QStringLiteral("codcli"),
                       QStringLiteral("nomecli"), QStringLiteral("imp"), QStringLiteral("Bdcon"), QStringLiteral("Bdadi"),
                       QStringLiteral("Bdexc"), QStringLiteral("Bdalt"), QStringLiteral("Cfcon"), QStringLiteral("Cfadi"),
                       QStringLiteral("Cfexc"), QStringLiteral("Cfalt"), QStringLiteral("Cfbai")},
                      QStringLiteral("Usuario.rpt"), QStringLiteral("Cadastro de Usuário")},
        .pesquisa = {QStringLiteral("frmPesqGeral"), QStringLiteral("Pesquisa de Usuários"), QStringLiteral("Usuarios"), 3},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
        .abandono = QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."),
    };
    return r;
}

frmUsuarios::frmUsuarios(QWidget *parent) : RecordForm(descricao(), parent), ui(new Ui::frmUsuarios)
{
    ui->setupUi(this);
    connect(ui->chkBdcon, &QCheckBox::clicked, this, &frmUsuarios::chkBdcon_Click);
    connect(ui->chkCfcon, &QCheckBox::clicked, this, &frmUsuarios::chkCfcon_Click);
    connect(ui->cmdTrocasen, &QPushButton::clicked, this, &frmUsuarios::cmdTrocasen_Click);
    connect(ui->cmdPesqCli, &QPushButton::clicked, this, &frmUsuarios::cmdPesqCli_Click);
    aoPerderFoco(ui->mskCodcli, [this] { mskCodcli_LostFocus(); });
    for (QCheckBox *c : dependentesBd() + dependentesCf())
        c->installEventFilter(this);
    carrega();
}

frmUsuarios::~frmUsuarios() = default;

bool frmUsuarios::administrador() const { return session.usuario == QLatin1String("Administrador"); }

QList<QCheckBox *> frmUsuarios::dependentesBd() const { return {ui->chkBdadi, ui->chkBdexc, ui->chkBdalt}; }

QList<QCheckBox *> frmUsuarios::dependentesCf() const { return {ui->chkCfadi, ui->chkCfexc, ui->chkCfalt, ui->chkCfbai}; }

QString frmUsuarios::empatValor() const { return QString::number(qint64(val(ui->mskCodcli->textoPuro()))); }

void frmUsuarios::valoresExtras(QHash<QString, QString> &valores) const
{
    valores.insert(QStringLiteral("senha"), EmbaralhaSenha(ui->txtSenha->text()));
    valores.insert(QStringLiteral("hoje"), formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")));
    valores.insert(QStringLiteral("empat"), empatValor());
}

void frmUsuarios::carregaExtras(const Recordset &rs)
{
    ui->txtSenha->setText(QStringLiteral("**********"));
    ui->mskCodcli->setText(ZeroEsq(QString::number(rs[QStringLiteral("empat")].toInt()), 3));
    mskCodcli_LostFocus();
}

void frmUsuarios::antesDasRegras() { PreencheVazios(*fraDados_); }

void frmUsuarios::validaCampos()
{
    RecordForm::validaCampos();
    // The name goes between apostrophes in the rights tests and the settlement.
    if (!NomeUsuarioValido(ui->txtnome->text()))
        AnotaErro(kErroFatal, kNomeUsuarioInvalido);
}

QString frmUsuarios::perguntaExclusao(const QString &) const
{
    return QStringLiteral("Deseja Realmente Excluir Este Usuário ?");
}

bool frmUsuarios::codigoRecusado(bool achou)
{
    if (!administrador() && !achou) {
        MsgBox(QStringLiteral("Somente o Administrador Esta Autorizado a Cadastrar Usuários !"), vbCritical,
               QStringLiteral("Atenção..."));
        mskCodigo_->setMascara(QStringLiteral("###"));
        mskCodigo_->clear();
        return true;
    }
    if (achou && novo()) {
        MsgBox(QStringLiteral("Código Já Cadastrado, Utilize Outro !"), vbExclamation, QStringLiteral("Atenção..."));
        return true;
    }
    return false;
}

void frmUsuarios::inclusaoRecusada()
{
    mskCodigo_->setMascara(QStringLiteral("###"));
    mskCodigo_->clear();
}

void frmUsuarios::modoMudou(int modo)
{
    if (modo == 1)
        return;
    // The password is typed only for a new user; later it changes through frmTrocasen.
    ui->txtSenha->setEnabled(modo == 3);
    if (modo == 3)
        ui->txtSenha->clear();
    if (administrador()) {
        aplicaDependencia(ui->chkBdcon, dependentesBd(), false);
        aplicaDependencia(ui->chkCfcon, dependentesCf(), false);
    } else {
        ui->frmBdados->setEnabled(false);
        ui->frmCFinc->setEnabled(false);
        cmdApagar_->setEnabled(false);
        cmdCancelar_->setEnabled(false);
    }
}

void frmUsuarios::aplicaDependencia(QCheckBox *mestre, const QList<QCheckBox *> &dependentes, bool desmarca)
{
    for (QCheckBox *c : dependentes) {
        c->setEnabled(mestre->isChecked());
        if (desmarca && !mestre->isChecked())
            c->setChecked(false);
    }
}

void frmUsuarios::chkBdcon_Click() { aplicaDependencia(ui->chkBdcon, dependentesBd(), true); }

void frmUsuarios::chkCfcon_Click() { aplicaDependencia(ui->chkCfcon, dependentesCf(), true); }

bool frmUsuarios::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        if (dependentesBd().contains(watched))
            chkBdcon_Click();
        else if (dependentesCf().contains(watched))
            chkCfcon_Click();
    }
    return QWidget::eventFilter(watched, event);
}

void frmUsuarios::mskCodcli_LostFocus()
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM clientes Where codigo = ") + empatValor());
    ui->lblNome->setText(rs.eof() ? QString() : rs[QStringLiteral("nome")].text());
}

void frmUsuarios::cmdPesqCli_Click()
{
    // The search runs on conAtiva, whatever file it names at this moment.
    if (!abrePesquisa(this, QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Usuários"), QStringLiteral("Clientes")))
        return;
    ui->mskCodcli->setText(ZeroEsq(session.valorPesq, 3));
    mskCodcli_LostFocus();
}

void frmUsuarios::cmdTrocasen_Click()
{
    session.valorPesq = codigoAtual();
    frmTrocasen trocasen(this);
    showModal(trocasen);
    if (!session.cancelaGrava)
        ui->lblDsenha->setText(formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")));
    else
        session.cancelaGrava = false;
}

QString frmUsuarios::chaveImpressao() const { return ui->txtnome->text(); }

RowFiller frmUsuarios::linhaRelatorio() const
{
    // Two columns are called nome: the user's comes first, the condominium's last.
    return [](const Recordset &r) {
        QStringList l{r[QStringLiteral("codigo")].text(), r.fieldAt(1).text(), r[QStringLiteral("dsenha")].text(),
                      r[QStringLiteral("empat")].text(), r.fieldAt(int(r.columnNames().size()) - 1).text(),
                      r[QStringLiteral("impressora")].text()};
        for (const char *d : kDireitos)
            l << r[QString::fromLatin1(d).toLower()].text();
        return l;
    };
}
