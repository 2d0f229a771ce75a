#include "registers/forms/recordform.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/validators.h"
#include "core/widgets/campos.h"
#include "core/widgets/datefield.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "core/widgets/numberfield.h"
#include "registers/forms/pesquisa.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTimer>

RecordForm::RecordForm(const Registro &registro, QWidget *parent) : QWidget(parent), registro_(registro) {}

RecordForm::~RecordForm()
{
    // Lost-focus checks never run on a form that is going away.
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

QWidget *RecordForm::controle(const QString &nome) const
{
    auto *w = findChild<QWidget *>(nome);
    if (!w)
        throw RunFailure(objectName() + QStringLiteral(": controle não encontrado: ") + nome);
    return w;
}

void RecordForm::carrega()
{
    mskCodigo_ = findChild<MaskEdit *>(registro_.campoCodigo.isEmpty() ? QStringLiteral("mskCodigo") : registro_.campoCodigo);
    if (!mskCodigo_)
        mskCodigo_ = qobject_cast<MaskEdit *>(controle(QStringLiteral("txtCodigo")));
    if (mskCodigo_->mascara().isEmpty()) {
        // A code without a mask takes digits only, up to the field's length.
        mskCodigo_->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[0-9]{0,%1}").arg(mskCodigo_->maxLength())), mskCodigo_));
    }
    fraDados_ = qobject_cast<QFrame *>(controle(QStringLiteral("fraDados")));
    tdbGrade_ = qobject_cast<Grade *>(controle(registro_.grade));
    cmdGravar_ = qobject_cast<QPushButton *>(controle(QStringLiteral("cmdGravar")));
    cmdApagar_ = qobject_cast<QPushButton *>(controle(QStringLiteral("cmdApagar")));
    cmdCancelar_ = qobject_cast<QPushButton *>(controle(QStringLiteral("cmdCancelar")));
    cmdImprimir_ = findChild<QPushButton *>(QStringLiteral("cmdImprimir"));  // not on a register without a report
    cmdSair_ = qobject_cast<QPushButton *>(controle(QStringLiteral("cmdSair")));
    cmdPesquisar_ = findChild<QPushButton *>(QStringLiteral("cmdPesquisar"));
    for (const Campo &c : registro_.campos) {
        if (c.tipo == Tipo::Opcao)
            for (const auto &[botao, valor] : c.opcoes)
                controle(botao);
        else
            controle(c.controle);
    }

    connect(cmdGravar_, &QPushButton::clicked, this, &RecordForm::cmdGravar_Click);
    connect(cmdApagar_, &QPushButton::clicked, this, &RecordForm::cmdApagar_Click);
    connect(cmdCancelar_, &QPushButton::clicked, this, &RecordForm::cmdCancelar_Click);
    if (cmdImprimir_)
        connect(cmdImprimir_, &QPushButton::clicked, this, &RecordForm::cmdImprimir_Click);
    connect(cmdSair_, &QPushButton::clicked, this, &RecordForm::cmdSair_Click);
    if (cmdPesquisar_)
        connect(cmdPesquisar_, &QPushButton::clicked, this, &RecordForm::cmdPesquisar_Click);
    for (QPushButton *b : findChildren<QPushButton *>())
        b->setAutoDefault(false);
    aoPerderFoco(mskCodigo_, [this] {
        if (!carregando_ && mskCodigo_->isEnabled() && QApplication::focusWidget() != cmdSair_)
            mskCodigo_LostFocus();
    });
    tdbGrade_->modelo()->setTitulos(registro_.titulosGrade);
    tdbGrade_->modelo()->setColunaNumerica(0, registro_.chave == Chave::Numero);
    connect(tdbGrade_, &Grade::linhaMudou, this, &RecordForm::tdbGrade_RowChange);

    cn_.ConnectionTimeout = 100;
    cn_.Open(registro_.conexao == Conexao::Sistema ? session.conSistema : session.conAtiva);
    TrocaModo(1);
    session.valorPesq.clear();
    preencheGrade();
    aplicaTeclado(*this);
}

QString RecordForm::normalizaCodigo(const QString &masked) const { return normalizaChave(registro_, masked); }

bool RecordForm::codigoVazio(const QString &codigo) const { return codigo.isEmpty() || val(codigo) == 0; }

QString RecordForm::codigoAtual() const { return normalizaCodigo(mskCodigo_->textoMascarado()); }

QString RecordForm::valorDe(const Campo &c) const
{
    QWidget *w = c.tipo == Tipo::Opcao ? nullptr : controle(c.controle);
    switch (c.tipo) {
    case Tipo::Texto:
        if (auto *t = qobject_cast<QPlainTextEdit *>(w))
            return t->toPlainText();
        if (auto *l = qobject_cast<QLabel *>(w))
            return l->text();
        return qobject_cast<QLineEdit *>(w)->text();
    case Tipo::Mascara:
        return qobject_cast<MaskEdit *>(w)->textoMascarado();
    case Tipo::Numero:
        return qobject_cast<NumberField *>(w)->valorSql();
    case Tipo::Data: {
        const QString d = qobject_cast<DateField *>(w)->dataSql();
        return d == QLatin1String("Null") ? c.nulo : d;
    }
    case Tipo::Booleano:
        return qobject_cast<QCheckBox *>(w)->isChecked() ? QStringLiteral("True") : QStringLiteral("False");
    case Tipo::Opcao:
        for (const auto &[botao, valor] : c.opcoes)
            if (qobject_cast<QRadioButton *>(controle(botao))->isChecked())
                return valor;
        return c.opcoes.isEmpty() ? QString() : c.opcoes.last().second;
    case Tipo::Combo:
        return qobject_cast<QComboBox *>(w)->currentText();
    }
    return QString();
}

void RecordForm::carregaCampo(const Campo &c, const Recordset &rs)
{
    if (c.coluna.isEmpty())
        return;
    const Field &f = rs[c.coluna];
    QWidget *w = c.tipo == Tipo::Opcao ? nullptr : controle(c.controle);
    switch (c.tipo) {
    case Tipo::Texto:
        if (auto *t = qobject_cast<QPlainTextEdit *>(w))
            t->setPlainText(f.text());
        else if (auto *l = qobject_cast<QLabel *>(w))
            l->setText(f.text());
        else
            qobject_cast<QLineEdit *>(w)->setText(f.text());
        break;
    case Tipo::Mascara:
        qobject_cast<MaskEdit *>(w)->setText(f.text());
        break;
    case Tipo::Numero:
        qobject_cast<NumberField *>(w)->setValor(f.toDouble());
        break;
    case Tipo::Data:
        qobject_cast<DateField *>(w)->setData(f.toDate());
        break;
    case Tipo::Booleano:
        qobject_cast<QCheckBox *>(w)->setChecked(f.toBool());
        break;
    case Tipo::Opcao:
        for (const auto &[botao, valor] : c.opcoes)
            if (valor == f.text().trimmed())
                qobject_cast<QRadioButton *>(controle(botao))->setChecked(true);
        break;
    case Tipo::Combo: {
        auto *combo = qobject_cast<QComboBox *>(w);
        combo->setCurrentIndex(combo->findText(f.text()));
        break;
    }
    }
}

QHash<QString, QString> RecordForm::valores(const QString &codigo) const
{
    QHash<QString, QString> v;
    v.insert(QStringLiteral("codigo"), codigo);
    for (const Campo &c : registro_.campos)
        v.insert(c.controle, valorDe(c));
    valoresExtras(v);
    return v;
}

QString RecordForm::sql(const QString &modelo, const QString &codigo) const
{
    if (nomesDoModelo(modelo).size() <= 1)  // the code alone: no need to read the fields
        return montaSql(modelo, {{QStringLiteral("codigo"), codigo}});
    return montaSql(modelo, valores(codigo));
}

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
    // Called from a focus change: the focus is given back once it has
    // settled, and only while the user is still in this form; a check must
    // never pull the focus back from another window.
    QTimer::singleShot(0, mskCodigo_, [this] {
        QWidget *foco = QApplication::focusWidget();
        if (foco && isAncestorOf(foco) && !fechando(*this))
            mskCodigo_->setFocus();
    });
}

void RecordForm::mskCodigo_LostFocus()
{
    const QString codigo = codigoAtual();
    if (codigoVazio(codigo)) {
        TrocaModo(1);
        focaCodigo();
        return;
    }
    poeCodigo(codigo);
    Recordset rs = cn_.Execute(sql(registro_.busca, codigo));
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
        for (const Campo &c : registro_.campos)
            carregaCampo(c, rs);
        carregaExtras(rs);
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

void RecordForm::validaCampos()
{
    for (const Obrigatorio &o : registro_.obrigatorios) {
        for (const Campo &c : registro_.campos)
            if (c.controle == o.controle && valorDe(c).trimmed().isEmpty())
                AnotaErro(kErroFatal, o.mensagem);
    }
}

void RecordForm::cmdGravar_Click()
{
    if (!podeGravar())
        return;
    const QString codigo = codigoAtual();
    session.valorPesq = codigo;
    LimpaErros();
    antesDasRegras();
    if (codigoVazio(codigo))
        AnotaErro(kErroFatal, registro_.codigoInvalido);
    if (novo_ && !codigo.isEmpty()) {
        Recordset rs = cn_.Execute(sql(registro_.existe, codigo));
        if (!rs.eof())
            AnotaErro(kErroFatal, registro_.codigoRepetido);
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
    session.sql = sql(novo_ ? registro_.insere : registro_.altera, codigo);
    cn_.Execute(session.sql);
    aposGravar(codigo, eraNovo);
    Recordset rs = cn_.Execute(sql(registro_.busca, codigo));
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
    cn_.Execute(sql(registro_.apaga, codigo));
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

void RecordForm::imprime(const QString &chave)
{
    const RelatorioRegistro &r = registro_.relatorio;
    if (r.sql.isEmpty() || (nomesDoModelo(r.sql).contains(QStringLiteral("chave")) && chave.isEmpty()))
        return;
    Recordset rs;
    Ampulheta ampulheta;
    ImprimeRelatorio(cn_, rs, montaSql(r.sql, {{QStringLiteral("chave"), chave}}), r.colunas, r.modelo, r.titulo, {},
                     linhaRelatorio());
}

void RecordForm::cmdPesquisar_Click()
{
    const PesquisaRegistro &p = registro_.pesquisa;
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

void RecordForm::closeEvent(QCloseEvent *event)
{
    if (primeiroCampo()->isEnabled()) {
        event->ignore();
        MsgBox(registro_.abandono, vbCritical, QStringLiteral("Atenção"));
        return;
    }
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}

QWidget *RecordForm::primeiroCampo() const
{
    const Campo &c = registro_.campos.first();
    return controle(c.tipo == Tipo::Opcao ? c.opcoes.first().first : c.controle);
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

QStringList RecordForm::linhaGrade(const Recordset &rs) const
{
    QStringList cells;
    for (const QString &c : registro_.colunasGrade)
        cells << rs[c].text();
    return cells;
}

void RecordForm::preencheGrade()
{
    GradeModel *grade = tdbGrade_->modelo();
    grade->limpa();
    Recordset count = cn_.Execute(registro_.contagem);
    Q_UNUSED(count);  // the in-memory table grows as the rows come
    for (Recordset rs = cn_.Execute(registro_.lista); !rs.eof(); rs.moveNext())
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
