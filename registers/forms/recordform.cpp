#include "registers/forms/recordform.h"

#include "core/anotaerro.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {
QList<QWidget *> campos(QWidget &container)
{
    QList<QWidget *> out;
    for (QWidget *w : container.findChildren<QWidget *>())
        if (qobject_cast<QLineEdit *>(w) || qobject_cast<QCheckBox *>(w) || qobject_cast<QPlainTextEdit *>(w))
            out << w;
    return out;
}
}

void LimpaCampos(QWidget &container)
{
    for (QWidget *w : campos(container)) {
        if (auto *e = qobject_cast<QLineEdit *>(w))
            e->clear();
        else if (auto *c = qobject_cast<QCheckBox *>(w))
            c->setChecked(false);
        else if (auto *t = qobject_cast<QPlainTextEdit *>(w))
            t->clear();
    }
}

void HabilitaCampos(QWidget &container, bool enabled)
{
    for (QWidget *w : campos(container)) {
        w->setEnabled(enabled);
        if (qobject_cast<QLineEdit *>(w) || qobject_cast<QPlainTextEdit *>(w)) {
            QPalette p = w->palette();
            p.setColor(QPalette::Base, enabled ? QColor(Qt::white) : container.palette().color(QPalette::Button));
            w->setPalette(p);
        }
    }
}

void PreencheVazios(QWidget &container)
{
    for (QWidget *w : campos(container))
        if (auto *e = qobject_cast<QLineEdit *>(w); e && e->inputMask().isEmpty() && e->text().isEmpty())
            e->setText(QStringLiteral(" "));
}

RecordForm::RecordForm(QWidget *parent) : QWidget(parent) {}

RecordForm::~RecordForm()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void RecordForm::montaTela(const QString &rotuloCodigo, const QString &mascara)
{
    mskCodigo_ = new MaskEdit(this);
    mskCodigo_->setObjectName(QStringLiteral("mskCodigo"));
    mskCodigo_->setMascara(mascara);
    mskCodigo_->setFixedWidth(mskCodigo_->fontMetrics().horizontalAdvance(QString(mascara.size() + 2, u'0')) + 12);
    mskCodigo_->installEventFilter(this);
    fraDados_ = new QFrame(this);
    fraDados_->setObjectName(QStringLiteral("fraDados"));
    fraDados_->setFrameShape(QFrame::StyledPanel);

    auto botao = [this](const char *name, const QString &caption) {
        auto *b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
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

    tdbGrade_ = new QTableWidget(this);
    tdbGrade_->setObjectName(QStringLiteral("tdbGrade"));
    tdbGrade_->setColumnCount(titulosGrade().size());
    tdbGrade_->setHorizontalHeaderLabels(titulosGrade());
    tdbGrade_->verticalHeader()->hide();
    tdbGrade_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tdbGrade_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tdbGrade_->setSelectionMode(QAbstractItemView::SingleSelection);
    tdbGrade_->horizontalHeader()->setStretchLastSection(true);
    tdbGrade_->setSortingEnabled(true);  // a header click sorts on its column
    connect(tdbGrade_, &QTableWidget::cellClicked, this, [this](int row, int) { tdbGrade_RowChange(row); });

    auto *topo = new QHBoxLayout;
    topo->addWidget(new QLabel(rotuloCodigo, this));
    topo->addWidget(mskCodigo_);
    topo->addStretch();
    auto *botoes = new QHBoxLayout;
    for (QPushButton *b : {cmdGravar_, cmdApagar_, cmdCancelar_, cmdImprimir_, cmdSair_})
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
    setFixedSize(sizeHint().expandedTo(QSize(480, 420)));
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
}

void RecordForm::focaCodigo()
{
    // Called from a focus change: the focus is given back once it has settled.
    QTimer::singleShot(0, mskCodigo_, [this] { mskCodigo_->setFocus(); });
}

bool RecordForm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mskCodigo_ && event->type() == QEvent::FocusOut && !carregando_) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && mskCodigo_->isEnabled()
            && QApplication::focusWidget() != cmdSair_)
            mskCodigo_LostFocus();
    }
    return QWidget::eventFilter(watched, event);
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
    if (novo_ && !achou_) {
        primeiroCampo()->setFocus();
        return;
    }
    if (achou_ && !novo_) {
        LimpaCampos(*fraDados_);
        HabilitaCampos(*fraDados_, true);
        carregaCampos(rs);
        const int row = linhaDoCodigo(codigo);
        if (row >= 0)
            tdbGrade_->setCurrentCell(row, 0);
        TrocaModo(2);
        primeiroCampo()->setFocus();
        return;
    }
    if (!achou_) {
        if (MsgBox(QStringLiteral("Código Não Cadastrado, Incluir Novo ?"), vbYesNo, QStringLiteral("Atenção...")) == vbYes) {
            novo_ = true;
            TrocaModo(3);
            HabilitaCampos(*fraDados_, true);
            primeiroCampo()->setFocus();
        } else {
            TrocaModo(1);
            focaCodigo();
        }
    }
}

void RecordForm::cmdGravar_Click()
{
    const QString codigo = codigoAtual();
    session.valorPesq = codigo;
    LimpaErros();
    if (codigo.isEmpty() || val(codigo) == 0)
        AnotaErro(kErroFatal, QStringLiteral("Todo Registro deve ter um código válido"));
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
    session.sql = novo_ ? sqlInsert(codigo) : sqlUpdate(codigo);
    cn_.Execute(session.sql);
    Recordset rs = cn_.Execute(sqlBusca(codigo));
    if (novo_) {
        novo_ = false;
        preencheGrade();  // the new row at its sorted place
    } else if (!rs.eof()) {
        const int row = linhaDoCodigo(codigo);
        const QStringList cells = linhaGrade(rs);
        for (int c = 0; row >= 0 && c < cells.size(); ++c)
            tdbGrade_->item(row, c)->setText(cells[c]);
    }
    TrocaModo(1);
    mskCodigo_->clear();
    mskCodigo_->setFocus();
}

void RecordForm::cmdApagar_Click()
{
    const QString codigo = codigoAtual();
    session.valorPesq = codigo;
    if (MsgBox(QStringLiteral("Deseja Realmente Excluir Este Registro ?"), vbYesNo + vbQuestion,
               QStringLiteral("Atenção..."))
        != vbYes)
        return;
    cn_.Execute(sqlDelete(codigo));
    const int row = linhaDoCodigo(codigo);
    if (row >= 0)
        tdbGrade_->removeRow(row);
    TrocaModo(1);
    mskCodigo_->clear();
    mskCodigo_->setFocus();
}

void RecordForm::cmdCancelar_Click()
{
    novo_ = false;
    TrocaModo(1);
    mskCodigo_->clear();
    mskCodigo_->setFocus();
}

void RecordForm::cmdImprimir_Click()
{
    if (primeiroCampo()->isEnabled())
        cmdGravar_Click();
    imprime();
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
    QTableWidgetItem *item = row >= 0 ? tdbGrade_->item(row, 0) : nullptr;
    if (!item || val(item->text()) < 0)
        return;
    novo_ = false;
    TrocaModo(1);
    carregando_ = true;
    mskCodigo_->setFocus();
    poeCodigo(item->text());
    carregando_ = false;
    mskCodigo_LostFocus();  // the {Tab} of the system
}

void RecordForm::preencheGrade()
{
    tdbGrade_->setSortingEnabled(false);
    Recordset count = cn_.Execute(sqlContagem());
    tdbGrade_->setRowCount(0);
    tdbGrade_->setRowCount(int(count[QStringLiteral("I")].toInt()));
    Recordset rs = cn_.Execute(sqlLista());
    int row = 0;
    for (; !rs.eof(); rs.moveNext()) {
        if (row >= tdbGrade_->rowCount())
            tdbGrade_->setRowCount(row + 1);
        const QStringList cells = linhaGrade(rs);
        for (int c = 0; c < cells.size(); ++c)
            tdbGrade_->setItem(row, c, new QTableWidgetItem(cells[c]));
        ++row;
    }
    tdbGrade_->setRowCount(row);
    tdbGrade_->setSortingEnabled(true);
    tdbGrade_->sortByColumn(0, Qt::AscendingOrder);
    tdbGrade_->resizeColumnsToContents();
    tdbGrade_->horizontalHeader()->setStretchLastSection(true);
}

int RecordForm::linhaDoCodigo(const QString &codigo) const
{
    for (int r = 0; r < tdbGrade_->rowCount(); ++r)
        if (tdbGrade_->item(r, 0) && tdbGrade_->item(r, 0)->text() == codigo)
            return r;
    return -1;
}
