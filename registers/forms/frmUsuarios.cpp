#include "registers/forms/frmUsuarios.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/frmTrocasen.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/pesquisa.h"
#include "reporting/imprime.h"

#include <QCheckBox>
#include <QDate>
#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QCheckBox *caixa(QWidget *parent, const char *name, const QString &caption)
{
    auto *c = new QCheckBox(caption, parent);
    c->setObjectName(QString::fromLatin1(name));
    return c;
}

QString booleano(bool b) { return b ? QStringLiteral("True") : QStringLiteral("False"); }
}

frmUsuarios::frmUsuarios(QWidget *parent) : RecordForm(parent)
{
    setObjectName(QStringLiteral("frmUsuarios"));
    setWindowTitle(QStringLiteral("Cadastro de Usuários"));
    montaTela(QStringLiteral("Código:"), QStringLiteral("###"));

    txtnome_ = new QLineEdit(fraDados_);
    txtnome_->setObjectName(QStringLiteral("txtnome"));
    txtnome_->setMaxLength(30);
    txtnome_->setMinimumWidth(txtnome_->fontMetrics().horizontalAdvance(QString(30, u'M')) / 2);
    txtSenha_ = new QLineEdit(fraDados_);
    txtSenha_->setObjectName(QStringLiteral("txtSenha"));
    txtSenha_->setEchoMode(QLineEdit::Password);
    txtSenha_->setMaxLength(10);
    txtSenha_->setFixedWidth(txtSenha_->fontMetrics().horizontalAdvance(QString(12, u'M')));
    lblDsenha_ = new QLabel(fraDados_);
    lblDsenha_->setObjectName(QStringLiteral("lblDsenha"));
    lblDsenha_->setFrameShape(QFrame::StyledPanel);
    lblDsenha_->setFixedWidth(lblDsenha_->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 8);
    auto *cmdTrocasen = new QPushButton(QStringLiteral("&Mudar"), fraDados_);
    cmdTrocasen->setObjectName(QStringLiteral("cmdTrocasen"));
    cmdTrocasen->setAutoDefault(false);

    auto *fraImpressora = new QGroupBox(QStringLiteral(" Impressora "), fraDados_);
    fraImpressora->setObjectName(QStringLiteral("fraImpressora"));
    optIm_ = new QRadioButton(QStringLiteral("Matricial"), fraImpressora);
    optIm_->setObjectName(QStringLiteral("optIm"));
    OptIj_ = new QRadioButton(QStringLiteral("Jato de Tinta"), fraImpressora);
    OptIj_->setObjectName(QStringLiteral("OptIj"));
    optIl_ = new QRadioButton(QStringLiteral("Laser"), fraImpressora);
    optIl_->setObjectName(QStringLiteral("optIl"));
    optIn_ = new QRadioButton(QStringLiteral("Sem Impressora"), fraImpressora);
    optIn_->setObjectName(QStringLiteral("optIn"));
    auto *li = new QHBoxLayout(fraImpressora);
    for (QRadioButton *o : {optIm_, OptIj_, optIl_, optIn_})
        li->addWidget(o);
    li->addStretch();

    mskCodcli_ = new MaskEdit(fraDados_);
    mskCodcli_->setObjectName(QStringLiteral("mskCodcli"));
    mskCodcli_->setMascara(QStringLiteral("###"));
    mskCodcli_->setFixedWidth(mskCodcli_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 14);
    lblNome_ = new QLabel(fraDados_);
    lblNome_->setObjectName(QStringLiteral("lblNome"));
    lblNome_->setFrameShape(QFrame::StyledPanel);
    lblNome_->setMinimumWidth(260);
    auto *cmdPesqCli = new QPushButton(QStringLiteral("P&esquisar"), fraDados_);
    cmdPesqCli->setObjectName(QStringLiteral("cmdPesqCli"));
    cmdPesqCli->setAutoDefault(false);

    frmBdados_ = new QGroupBox(QStringLiteral(" Tarefas do Banco de Dados "), fraDados_);
    frmBdados_->setObjectName(QStringLiteral("frmBdados"));
    chkBdcon_ = caixa(frmBdados_, "chkBdcon", QStringLiteral("Consulta"));
    chkBdadi_ = caixa(frmBdados_, "chkBdadi", QStringLiteral("Adição"));
    chkBdexc_ = caixa(frmBdados_, "chkBdexc", QStringLiteral("Exclusão"));
    chkBdalt_ = caixa(frmBdados_, "chkBdalt", QStringLiteral("Alteração"));
    auto *lb = new QVBoxLayout(frmBdados_);
    for (QCheckBox *c : {chkBdcon_, chkBdadi_, chkBdexc_, chkBdalt_})
        lb->addWidget(c);
    lb->addStretch();
    frmCFinc_ = new QGroupBox(QStringLiteral(" Tarefas do Controle Financeiro "), fraDados_);
    frmCFinc_->setObjectName(QStringLiteral("frmCFinc"));
    chkCfcon_ = caixa(frmCFinc_, "chkCfcon", QStringLiteral("Consulta"));
    chkCfadi_ = caixa(frmCFinc_, "chkCfadi", QStringLiteral("Adição"));
    chkCfexc_ = caixa(frmCFinc_, "chkCfexc", QStringLiteral("Exclusão"));
    chkCfalt_ = caixa(frmCFinc_, "chkCfalt", QStringLiteral("Alteração"));
    chkCfbai_ = caixa(frmCFinc_, "chkCfbai", QStringLiteral("Baixa"));
    auto *lf = new QVBoxLayout(frmCFinc_);
    for (QCheckBox *c : {chkCfcon_, chkCfadi_, chkCfexc_, chkCfalt_, chkCfbai_})
        lf->addWidget(c);

    auto *grid = new QGridLayout(fraDados_);
    grid->addWidget(new QLabel(QStringLiteral("Nome:"), fraDados_), 0, 0);
    grid->addWidget(txtnome_, 0, 1, 1, 4);
    grid->addWidget(new QLabel(QStringLiteral("Senha:"), fraDados_), 1, 0);
    auto *senha = new QHBoxLayout;
    senha->addWidget(txtSenha_);
    senha->addSpacing(12);
    senha->addWidget(new QLabel(QStringLiteral("Última Alteração:"), fraDados_));
    senha->addWidget(lblDsenha_);
    senha->addWidget(cmdTrocasen);
    senha->addStretch();
    grid->addLayout(senha, 1, 1, 1, 4);
    grid->addWidget(new QLabel(QStringLiteral("Condomínio:"), fraDados_), 2, 0);
    auto *cond = new QHBoxLayout;
    cond->addWidget(mskCodcli_);
    cond->addWidget(lblNome_, 1);
    cond->addWidget(cmdPesqCli);
    grid->addLayout(cond, 2, 1, 1, 4);
    grid->addWidget(fraImpressora, 3, 0, 1, 5);
    auto *tarefas = new QHBoxLayout;
    tarefas->addWidget(frmBdados_, 1);
    tarefas->addWidget(frmCFinc_, 1);
    grid->addLayout(tarefas, 4, 0, 1, 5);
    grid->setColumnStretch(4, 1);

    connect(chkBdcon_, &QCheckBox::clicked, this, &frmUsuarios::chkBdcon_Click);
    connect(chkCfcon_, &QCheckBox::clicked, this, &frmUsuarios::chkCfcon_Click);
    connect(cmdTrocasen, &QPushButton::clicked, this, &frmUsuarios::cmdTrocasen_Click);
    connect(cmdPesqCli, &QPushButton::clicked, this, &frmUsuarios::cmdPesqCli_Click);
    aoPerderFoco(mskCodcli_, [this] { mskCodcli_LostFocus(); });
    for (QCheckBox *c : {chkBdadi_, chkBdexc_, chkBdalt_, chkCfadi_, chkCfexc_, chkCfalt_, chkCfbai_})
        c->installEventFilter(this);
    carrega(session.conSistema);
}

bool frmUsuarios::administrador() const { return session.usuario == QLatin1String("Administrador"); }

QString frmUsuarios::normalizaCodigo(const QString &masked) const
{
    const QString bare = bareText(masked);
    return bare.isEmpty() ? QString() : QString::number(qint64(val(bare)));
}

QString frmUsuarios::sqlBusca(const QString &c) const { return QStringLiteral("SELECT * FROM usuarios Where Codigo = ") + c; }
QString frmUsuarios::sqlExiste(const QString &c) const { return QStringLiteral("SELECT codigo FROM usuarios Where Codigo = ") + c; }
QString frmUsuarios::sqlContagem() const { return QStringLiteral("SELECT Count(codigo) As I FROM Usuarios"); }
QString frmUsuarios::sqlLista() const { return QStringLiteral("SELECT * FROM Usuarios ORDER BY codigo"); }

QString frmUsuarios::impressoraMarcada() const
{
    if (optIm_->isChecked())
        return QStringLiteral("M");
    if (OptIj_->isChecked())
        return QStringLiteral("J");
    if (optIl_->isChecked())
        return QStringLiteral("L");
    return QStringLiteral("S");
}

QString frmUsuarios::empatValor() const { return QString::number(qint64(val(mskCodcli_->textoPuro()))); }

QString frmUsuarios::sqlInsert(const QString &c) const
{
    const QString senha = EmbaralhaSenha(txtSenha_->text());
    const QList<QCheckBox *> caixas{chkBdcon_, chkBdadi_, chkBdexc_, chkBdalt_, chkCfcon_,
                                    chkCfadi_, chkCfexc_, chkCfalt_, chkCfbai_};
    QString sql = QStringLiteral("INSERT INTO usuarios(codigo,nome,senha,impressora,")
        + QStringLiteral("dsenha,empat,bdcon,bdadi,bdexc,bdalt,") + QStringLiteral("cfcon,cfadi,cfexc,cfalt,cfbai)")
        + QStringLiteral(" VALUES( '") + c + QStringLiteral("',") + u'"' + txtnome_->text() + QStringLiteral("\",")
        + u'"' + senha + QStringLiteral("\",") + u'\'' + impressoraMarcada() + QStringLiteral("',") + u'\''
        + formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")) + QStringLiteral("',") + u'\'' + empatValor()
        + QStringLiteral("',");
    for (int n = 0; n < caixas.size(); ++n)
        sql += booleano(caixas[n]->isChecked()) + (n + 1 < caixas.size() ? QStringLiteral(",") : QString());
    return sql + u')';
}

QString frmUsuarios::sqlUpdate(const QString &c) const
{
    const QList<QPair<const char *, QCheckBox *>> caixas{
        {"Bdcon", chkBdcon_}, {"Bdadi", chkBdadi_}, {"Bdexc", chkBdexc_}, {"Bdalt", chkBdalt_}, {"Cfcon", chkCfcon_},
        {"Cfadi", chkCfadi_}, {"Cfexc", chkCfexc_}, {"Cfalt", chkCfalt_}, {"Cfbai", chkCfbai_}};
    QString sql = QStringLiteral("Update usuarios Set nome = \"") + txtnome_->text() + QStringLiteral("\",")
        + QStringLiteral("impressora = '") + impressoraMarcada() + QStringLiteral("',") + QStringLiteral("empat = '")
        + empatValor() + QStringLiteral("',");
    for (int n = 0; n < caixas.size(); ++n)
        sql += QString::fromLatin1(caixas[n].first) + QStringLiteral(" = ") + booleano(caixas[n].second->isChecked())
            + (n + 1 < caixas.size() ? QStringLiteral(",") : QString());
    return sql + QStringLiteral(" Where codigo = ") + c;
}

QString frmUsuarios::sqlDelete(const QString &c) const { return QStringLiteral("DELETE FROM Usuarios WHERE codigo = ") + c; }

void frmUsuarios::carregaCampos(const Recordset &rs)
{
    txtnome_->setText(rs[QStringLiteral("nome")].text());
    txtSenha_->setText(QStringLiteral("**********"));
    lblDsenha_->setText(rs[QStringLiteral("dsenha")].text());
    const QString letra = rs[QStringLiteral("impressora")].text();
    optIm_->setChecked(letra == QLatin1String("M"));
    OptIj_->setChecked(letra == QLatin1String("J"));
    optIl_->setChecked(letra == QLatin1String("L"));
    optIn_->setChecked(letra == QLatin1String("S"));
    const qint64 empat = rs[QStringLiteral("empat")].toInt();
    mskCodcli_->setText(ZeroEsq(QString::number(empat), 3));
    mskCodcli_LostFocus();
    chkBdcon_->setChecked(rs[QStringLiteral("bdcon")].toBool());
    chkBdadi_->setChecked(rs[QStringLiteral("bdadi")].toBool());
    chkBdexc_->setChecked(rs[QStringLiteral("bdexc")].toBool());
    chkBdalt_->setChecked(rs[QStringLiteral("bdalt")].toBool());
    chkCfcon_->setChecked(rs[QStringLiteral("cfcon")].toBool());
    chkCfadi_->setChecked(rs[QStringLiteral("cfadi")].toBool());
    chkCfexc_->setChecked(rs[QStringLiteral("cfexc")].toBool());
    chkCfalt_->setChecked(rs[QStringLiteral("cfalt")].toBool());
    chkCfbai_->setChecked(rs[QStringLiteral("cfbai")].toBool());
}

void frmUsuarios::antesDasRegras() { PreencheVazios(*fraDados_); }

QString frmUsuarios::mensagemCodigoInvalido() const
{
    return QStringLiteral("Todo registro deve ter um código numérico válido !");
}

void frmUsuarios::validaCampos()
{
    if (txtnome_->text().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O nome do usuário é obrigatório !"));
}

QStringList frmUsuarios::linhaGrade(const Recordset &rs) const
{
    return {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text()};
}

QStringList frmUsuarios::titulosGrade() const { return {QStringLiteral("Código"), QStringLiteral("Nome")}; }

QWidget *frmUsuarios::primeiroCampo() const { return txtnome_; }

QString frmUsuarios::mensagemAbandono() const
{
    return QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes...");
}

QString frmUsuarios::perguntaExclusao(const QString &) const
{
    return QStringLiteral("Deseja Realmente Excluir Este Usuário ?");
}

RecordForm::Pesquisa frmUsuarios::pesquisa() const
{
    return {QStringLiteral("frmPesqGeral"), QStringLiteral("Pesquisa de Usuários"), QStringLiteral("Usuarios"), 3};
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
    txtSenha_->setEnabled(modo == 3);
    if (modo == 3)
        txtSenha_->clear();
    if (administrador()) {
        aplicaDependencia(chkBdcon_, {chkBdadi_, chkBdexc_, chkBdalt_}, false);
        aplicaDependencia(chkCfcon_, {chkCfadi_, chkCfexc_, chkCfalt_, chkCfbai_}, false);
    } else {
        frmBdados_->setEnabled(false);
        frmCFinc_->setEnabled(false);
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

void frmUsuarios::chkBdcon_Click() { aplicaDependencia(chkBdcon_, {chkBdadi_, chkBdexc_, chkBdalt_}, true); }

void frmUsuarios::chkCfcon_Click() { aplicaDependencia(chkCfcon_, {chkCfadi_, chkCfexc_, chkCfalt_, chkCfbai_}, true); }

bool frmUsuarios::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        if (watched == chkBdadi_ || watched == chkBdexc_ || watched == chkBdalt_)
            chkBdcon_Click();
        else if (watched == chkCfadi_ || watched == chkCfexc_ || watched == chkCfalt_ || watched == chkCfbai_)
            chkCfcon_Click();
    }
    return QWidget::eventFilter(watched, event);
}

void frmUsuarios::mskCodcli_LostFocus()
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM clientes Where codigo = ") + empatValor());
    lblNome_->setText(rs.eof() ? QString() : rs[QStringLiteral("nome")].text());
}

void frmUsuarios::cmdPesqCli_Click()
{
    // The search runs on conAtiva, whatever file it names at this moment.
    if (!abrePesquisa(this, QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Usuários"), QStringLiteral("Clientes")))
        return;
    mskCodcli_->setText(ZeroEsq(session.valorPesq, 3));
    mskCodcli_LostFocus();
}

void frmUsuarios::cmdTrocasen_Click()
{
    session.valorPesq = codigoAtual();
    frmTrocasen trocasen(this);
    showModal(trocasen);
    if (!session.cancelaGrava)
        lblDsenha_->setText(formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")));
    else
        session.cancelaGrava = false;
}

QString frmUsuarios::chaveImpressao() const { return txtnome_->text(); }

void frmUsuarios::imprime(const QString &nome)
{
    Recordset rs;
    Ampulheta ampulheta;
    const QStringList colunas{QStringLiteral("codigo"), QStringLiteral("nome"),  QStringLiteral("data"),
                              QStringLiteral("codcli"), QStringLiteral("nomecli"), QStringLiteral("imp"),
                              QStringLiteral("Bdcon"),  QStringLiteral("Bdadi"), QStringLiteral("Bdexc"),
                              QStringLiteral("Bdalt"),  QStringLiteral("Cfcon"), QStringLiteral("Cfadi"),
                              QStringLiteral("Cfexc"),  QStringLiteral("Cfalt"), QStringLiteral("Cfbai")};
    // Two columns are called nome: the user's comes first, the condominium's last.
    auto linha = [](const Recordset &r) {
        QStringList l{r[QStringLiteral("codigo")].text(), r.fieldAt(1).text(), r[QStringLiteral("dsenha")].text(),
                      r[QStringLiteral("empat")].text(), r.fieldAt(int(r.columnNames().size()) - 1).text(),
                      r[QStringLiteral("impressora")].text()};
        for (const char *c : {"bdcon", "bdadi", "bdexc", "bdalt", "cfcon", "cfadi", "cfexc", "cfalt", "cfbai"})
            l << r[QString::fromLatin1(c)].text();
        return l;
    };
    ImprimeRelatorio(cn_, rs,
                     QStringLiteral("SELECT Usuarios.*,Clientes.Nome FROM Usuarios INNER JOIN Clientes ON Usuarios.Empat = "
                                    "Clientes.codigo WHERE Usuarios.nome = '")
                         + nome + u'\'',
                     colunas, QStringLiteral("Usuario.rpt"), QStringLiteral("Cadastro de Usuário"), {}, linha);
}
