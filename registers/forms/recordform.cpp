#include "registers/forms/recordform.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/pesquisa.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QVBoxLayout>

RecordForm::RecordForm(QWidget *parent) : QWidget(parent) {}

RecordForm::~RecordForm()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void RecordForm::montaTela(const QString &rotuloCodigo, const QString &mascara, int digitos)
{
    mskCodigo_ = new MaskEdit(this);
    if (mascara.isEmpty()) {
        mskCodigo_->setObjectName(QStringLiteral("txtCodigo"));
        mskCodigo_->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[0-9]{0,%1}").arg(digitos)), mskCodigo_));
        mskCodigo_->setFixedWidth(mskCodigo_->fontMetrics().horizontalAdvance(QString(digitos + 2, u'0')) + 14);
    } else {
        mskCodigo_->setObjectName(QStringLiteral("mskCodigo"));
        mskCodigo_->setMascara(mascara);
        mskCodigo_->setFixedWidth(mskCodigo_->fontMetrics().horizontalAdvance(QString(mascara.size() + 2, u'0')) + 14);
    }
    aoPerderFoco(mskCodigo_, [this] {
        if (!carregando_ && mskCodigo_->isEnabled() && QApplication::focusWidget() != cmdSair_)
            mskCodigo_LostFocus();
    });
    fraDados_ = new QFrame(this);
    fraDados_->setObjectName(QStringLiteral("fraDados"));
    fraDados_->setFrameShape(QFrame::StyledPanel);

    auto botao = [this](const char *name, const QString &caption) {
        auto *b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        b->setMinimumWidth(88);
        return b;
    };
    cmdGravar_ = botao("cmdGravar", QStringLiteral("&Gravar"));
    cmdApagar_ = botao("cmdApagar", QStringLiteral("&Apagar"));
    cmdCancelar_ = botao("cmdCancelar", QStringLiteral("&Cancelar"));
    cmdImprimir_ = botao("cmdImprimir", QStringLiteral("&Imprimir"));
    cmdSair_ = botao("cmdSair", QStringLiteral("&Sair"));
    connect(cmdGravar_, &QPushButton::clicked, this, &RecordForm::cmdGravar_Click);
    connect(cmdApagar_, &QPushButton::clicked, this, &RecordForm::cmdApagar_Click);
    connect(cmdCancelar_, &QPushButton::clicked, this, &RecordForm::cmdCancelar_Click);
    connect(cmdImprimir_, &QPushButton::clicked, this, &RecordForm::cmdImprimir_Click);
    connect(cmdSair_, &QPushButton::clicked, this, &RecordForm::cmdSair_Click);
    if (!pesquisa().dialogo.isEmpty()) {
        cmdPesquisar_ = botao("cmdPesquisar", QStringLiteral("&Pesquisar"));
        connect(cmdPesquisar_, &QPushButton::clicked, this, &RecordForm::cmdPesquisar_Click);
    }

    tdbGrade_ = new Grade(this);
    tdbGrade_->setObjectName(QStringLiteral("tdbGrade"));
    tdbGrade_->modelo()->setTitulos(titulosGrade());
    tdbGrade_->modelo()->setColunaNumerica(0, codigoNumerico());
    tdbGrade_->setMinimumHeight(150);
    connect(tdbGrade_, &Grade::linhaMudou, this, &RecordForm::tdbGrade_RowChange);

    auto *rotulo = new QLabel(rotuloCodigo, this);
    rotulo->setBuddy(mskCodigo_);
    auto *topo = new QHBoxLayout;
    topo->addWidget(rotulo);
    topo->addWidget(mskCodigo_);
    topo->addStretch();
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    QList<QPushButton *> lista{cmdGravar_, cmdApagar_, cmdCancelar_, cmdImprimir_};
    if (cmdPesquisar_)
        lista << cmdPesquisar_;
    lista << cmdSair_;
    for (QPushButton *b : lista)
        botoes->addWidget(b);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(topo);
    layout->addWidget(fraDados_);
    layout->addLayout(botoes);
    layout->addWidget(tdbGrade_, 1);
}

void RecordForm::carrega(const QString &connectionString)
{
    cn_.ConnectionTimeout = 100;
    cn_.Open(connectionString);
    TrocaModo(1);
    session.valorPesq.clear();
    preencheGrade();
    aplicaTeclado(*this);
    // Position and size are fixed.
    setFixedSize(sizeHint().expandedTo(QSize(520, 440)));
}

QString RecordForm::codigoAtual() const { return normalizaCodigo(mskCodigo_->textoMascarado()); }

void RecordForm::TrocaModo(int modo)
{
    modo_ = modo;
    if (modo == 1) {
        LimpaCampos(*fraDados_);
        valoresPadrao();
        HabilitaCampos(*fraDados_, false);
        mskCodigo_->setEnabled(true);
        QPalette p = mskCodigo_->palette();
        p.setColor(QPalette::Base, Qt::white);
        mskCodigo_->setPalette(p);
    } else {
        mskCodigo_->setEnabled(false);
    }
    cmdGravar_->setEnabled(modo != 1);
    cmdCancelar_->setEnabled(modo != 1);
    cmdApagar_->setEnabled(modo == 2);
    modoMudou(modo);
}

void RecordForm::focaCodigo()
{
    // Called from a focus change: the focus is given back once it has settled.
    QTimer::singleShot(0, mskCodigo_, [this] { mskCodigo_->setFocus(); });
}


void RecordForm::mskCodigo_LostFocus()
{
    const QString codigo = codigoAtual();
    if (codigo.isEmpty() || val(codigo) == 0) {
        TrocaModo(1);
        focaCodigo();
        return;
    }
    poeCodigo(codigo);
    Recordset rs = cn_.Execute(sqlBusca(codigo));
    achou_ = !rs.eof();
    if (codigoRecusado(achou_)) {
        focaCodigo();
        return;
    }
    if (novo_ && !achou_) {
        primeiroCampo()->setFocus();
        return;
    }
    if (achou_ && !novo_) {
        LimpaCampos(*fraDados_);
        HabilitaCampos(*fraDados_, true);
        carregaCampos(rs);
        tdbGrade_->posiciona(linhaDoCodigo(codigo));
        TrocaModo(2);
        primeiroCampo()->setFocus();
        return;
    }
    if (!achou_) {
        if (MsgBox(QStringLiteral("Código Não Cadastrado, Incluir Novo ?"), vbYesNo, QStringLiteral("Atenção...")) == vbYes) {
            novo_ = true;
            HabilitaCampos(*fraDados_, true);
            TrocaModo(3);
            primeiroCampo()->setFocus();
        } else {
            TrocaModo(1);
            inclusaoRecusada();
            focaCodigo();
        }
    }
}

QString RecordForm::mensagemCodigoInvalido() const { return QStringLiteral("Todo Registro deve ter um código válido"); }

void RecordForm::cmdGravar_Click()
{
    const QString codigo = codigoAtual();
    session.valorPesq = codigo;
    LimpaErros();
    antesDasRegras();
    if (codigo.isEmpty() || val(codigo) == 0)
        AnotaErro(kErroFatal, mensagemCodigoInvalido());
    if (novo_ && !codigo.isEmpty()) {
        Recordset rs = cn_.Execute(sqlExiste(codigo));
        if (!rs.eof())
            AnotaErro(kErroFatal, QStringLiteral("Código Já Cadastrado, Troque o Número !"));
    }
    validaCampos();
    session.temErros = session.qtErros > 1;
    if (session.temErros) {
        frmErros erros(this);
        showModal(erros);
        if (session.cancelaGrava) {
            session.cancelaGrava = false;
            return;
        }
    }
    const bool eraNovo = novo_;
    session.sql = novo_ ? sqlInsert(codigo) : sqlUpdate(codigo);
    cn_.Execute(session.sql);
    aposGravar(codigo, eraNovo);
    Recordset rs = cn_.Execute(sqlBusca(codigo));
    GradeModel *grade = tdbGrade_->modelo();
    if (novo_) {
        novo_ = false;
        if (!rs.eof()) {
            const QStringList cells = linhaGrade(rs);
            grade->insere(grade->lugarOrdenado(cells), cells);  // at its sorted place
        }
    } else if (!rs.eof()) {
        grade->altera(linhaDoCodigo(codigo), linhaGrade(rs));
    }
    voltaAoCodigo();
}

QString RecordForm::perguntaExclusao(const QString &) const
{
    return QStringLiteral("Deseja Realmente Excluir Este Registro ?");
}

int RecordForm::estiloExclusao() const { return vbYesNo + vbQuestion; }

void RecordForm::cmdApagar_Click()
{
    const QString codigo = codigoAtual();
    session.valorPesq = codigo;
    if (MsgBox(perguntaExclusao(codigo), estiloExclusao(), QStringLiteral("Atenção...")) != vbYes)
        return;
    antesDeApagar(codigo);
    cn_.Execute(sqlDelete(codigo));
    tdbGrade_->modelo()->remove(linhaDoCodigo(codigo));
    voltaAoCodigo();
}

void RecordForm::cmdCancelar_Click()
{
    novo_ = false;
    voltaAoCodigo();
}

void RecordForm::voltaAoCodigo()
{
    TrocaModo(1);
    mskCodigo_->clear();
    mskCodigo_->setFocus();
}

void RecordForm::cmdImprimir_Click()
{
    const QString chave = chaveImpressao();
    if (primeiroCampo()->isEnabled())
        cmdGravar_Click();
    imprime(chave);
}

void RecordForm::cmdPesquisar_Click()
{
    const Pesquisa p = pesquisa();
    if (!abrePesquisa(this, p.dialogo, p.titulo, p.tabela))
        return;
    // The chosen code is typed into the code field and left with a Tab, as a
    // grid click does: a record in hand is dropped.
    QString codigo = session.valorPesq.trimmed();
    if (p.largura > 0 && codigo.size() <= p.largura)
        codigo = ZeroEsq(codigo, p.largura);
    novo_ = false;
    TrocaModo(1);
    carregando_ = true;
    mskCodigo_->setFocus();
    poeCodigo(codigo);
    carregando_ = false;
    mskCodigo_LostFocus();
}

void RecordForm::cmdSair_Click() { fechaForm(*this); }

QString RecordForm::mensagemAbandono() const
{
    return QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele !");
}

void RecordForm::closeEvent(QCloseEvent *event)
{
    if (primeiroCampo()->isEnabled()) {
        event->ignore();
        MsgBox(mensagemAbandono(), vbCritical, QStringLiteral("Atenção"));
        return;
    }
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}

void RecordForm::poeCodigo(const QString &codigo) { mskCodigo_->setText(codigo); }

void RecordForm::tdbGrade_RowChange(int row)
{
    const QString codigo = tdbGrade_->texto(row, 0);
    if (row < 0 || row >= tdbGrade_->linhas() || val(codigo) < 0)
        return;
    novo_ = false;
    TrocaModo(1);
    carregando_ = true;
    mskCodigo_->setFocus();
    poeCodigo(codigo);
    carregando_ = false;
    mskCodigo_LostFocus();  // the {Tab} of the system
}

void RecordForm::preencheGrade()
{
    GradeModel *grade = tdbGrade_->modelo();
    grade->limpa();
    Recordset count = cn_.Execute(sqlContagem());
    Q_UNUSED(count);  // the in-memory table grows as the rows come
    for (Recordset rs = cn_.Execute(sqlLista()); !rs.eof(); rs.moveNext())
        grade->adiciona(linhaGrade(rs));
    grade->sort(0, Qt::AscendingOrder);
    tdbGrade_->ajustaColunas();
}

int RecordForm::linhaDoCodigo(const QString &codigo) const { return tdbGrade_->modelo()->linhaDe(0, codigo); }

void RecordForm::confereUF(QLineEdit *campo)
{
    if (campo->text().trimmed().isEmpty() || ValidaUF(campo->text()))
        return;
    MsgBox(QStringLiteral("Sigla do estado inválida, digite corretamente ou deixe o campo vazio"), vbCritical,
           QStringLiteral("Erro"));
    campo->clear();
}

void RecordForm::confereCPF(const MaskEdit *campo)
{
    if (!campo->textoPuro().isEmpty())
        ValidaCPF(campo->textoPuro());
}

void RecordForm::confereCGC(const MaskEdit *campo)
{
    if (!campo->textoPuro().isEmpty())
        ValidaCGC(campo->textoPuro());
}
