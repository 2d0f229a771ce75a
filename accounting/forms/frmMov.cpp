#include "accounting/forms/frmMov.h"

#include "accounting/lancamentos.h"
#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/errors.h"
#include "core/forms/abrepesquisa.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "ui_frmMov.h"

#include <QApplication>
#include <QCloseEvent>
#include <QRegularExpressionValidator>
#include <QTimer>

namespace {
const QString kContaVazia = QStringLiteral("__.___");
const QString kAtencao = QStringLiteral("Atenção...");
const QString kPicture = QStringLiteral("#,##0.00");

void pinta(QWidget *campo, bool ativo)
{
    QPalette p = campo->palette();
    p.setColor(QPalette::Base, ativo ? QColor(Qt::white) : campo->palette().color(QPalette::Button));
    campo->setPalette(p);
}
}

frmMov::frmMov(QWidget *parent) : QWidget(parent)
{
    Ui::frmMov ui;
    ui.setupUi(this);
    fraAtiva_ = ui.fraAtiva;
    tdbAno_ = ui.tdbAno;
    tdbData_ = ui.tdbData;
    mskCodigo_ = ui.mskCodigo;
    mskDeb_ = ui.mskDeb;
    mskCre_ = ui.mskCre;
    txtNrDoc_ = ui.txtNrDoc;
    txtHist_ = ui.txtHist;
    tdbVlrcont_ = ui.tdbVlrcont;
    lblDebito_ = ui.lblDebito;
    lblCredito_ = ui.lblCredito;
    cmdNovo_ = ui.cmdNovo;
    cmdGravar_ = ui.cmdGravar;
    cmdCancelar_ = ui.cmdCancelar;
    cmdApagar_ = ui.cmdApagar;
    cmdPesquisar_ = ui.cmdPesquisar;
    cmdPesqPCta_ = ui.cmdPesqPCta;
    cmdTrocaano_ = ui.cmdTrocaano;
    cmdSair_ = ui.cmdSair;

    tdbAno_->setFormato(DateField::Ano);
    txtNrDoc_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), txtNrDoc_));
    tdbVlrcont_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?[0-9.,]*")), tdbVlrcont_));

    connect(cmdNovo_, &QPushButton::clicked, this, &frmMov::cmdNovo_Click);
    connect(cmdGravar_, &QPushButton::clicked, this, &frmMov::cmdGravar_Click);
    connect(cmdCancelar_, &QPushButton::clicked, this, &frmMov::cmdCancelar_Click);
    connect(cmdApagar_, &QPushButton::clicked, this, &frmMov::cmdApagar_Click);
    connect(cmdPesquisar_, &QPushButton::clicked, this, &frmMov::cmdPesquisar_Click);
    connect(cmdPesqPCta_, &QPushButton::clicked, this, &frmMov::cmdPesqPCta_Click);
    connect(cmdTrocaano_, &QPushButton::clicked, this, &frmMov::cmdTrocaano_Click);
    connect(cmdSair_, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    for (QPushButton *b : findChildren<QPushButton *>())
        b->setAutoDefault(false);

    auto saindo = [this] { return QApplication::focusWidget() == cmdSair_; };
    aoPerderFoco(tdbAno_, [this, saindo] {
        if (!anoConfirmado_ && tdbAno_->isEnabled() && !saindo())
            tdbAno_LostFocus();
    });
    aoPerderFoco(mskCodigo_, [this, saindo] {
        if (mskCodigo_->isEnabled() && !saindo())
            mskCodigo_LostFocus();
    });
    aoPerderFoco(mskDeb_, [this] { mostraConta(mskDeb_, lblDebito_, QStringLiteral("Conta Não Cadastrada, pesquise !")); });
    aoPerderFoco(mskCre_, [this] { mostraConta(mskCre_, lblCredito_, QStringLiteral("Conta Não Cadastrada, pesquise !")); });
    aoPerderFoco(tdbVlrcont_, [this] { confereValor(); });
    aoPerderFoco(tdbData_, [this] {
        // The date control keeps the focus on a date it refuses; say why.
        if (tdbData_->valido() || !tdbData_->isEnabled())
            return;
        if (!tdbData_->data().isValid())
            MsgBox(QStringLiteral("Data inválida, digite a data do lançamento como dd/mm/aaaa !"), vbExclamation, kAtencao);
        else
            MsgBox(QStringLiteral("A data do lançamento deve estar dentro do ano ativo (01/01/%1 a 31/12/%1) !").arg(anoAtivo_),
                   vbExclamation, kAtencao);
    });

    // Load.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT ano_mov FROM parametros"));
    tdbData_->setMaximo(QDate(2008, 12, 31));
    if (rs.eof() || rs[QStringLiteral("ano_mov")].isNull()) {
        anoAtivo_ = QStringLiteral("2008");
        tdbAno_->setData(QDate(2008, 1, 1));
    } else {
        const QDate ano = rs[QStringLiteral("ano_mov")].toDate();
        anoAtivo_ = QString::number(ano.year());
        tdbAno_->setData(ano);
    }
    // Only a name until a year is chosen: no command that reads it is enabled before.
    tabela_ = QStringLiteral("Mov") + ZeroEsq(QString::number(tdbAno_->data().month()), 2);
    TrocaEstado(4);
    novo_ = false;
    anoConfirmado_ = false;
    aplicaTeclado(*this);
}

frmMov::~frmMov()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmMov::TrocaEstado(int estado)
{
    const bool registro = estado == 2 || estado == 3;
    cmdNovo_->setEnabled(estado == 1);
    cmdGravar_->setEnabled(registro);
    cmdCancelar_->setEnabled(registro);
    cmdApagar_->setEnabled(estado == 2);
    cmdPesquisar_->setEnabled(estado == 1);
    cmdPesqPCta_->setEnabled(registro);
    cmdTrocaano_->setEnabled(!registro);
    cmdSair_->setEnabled(!registro);
    fraAtiva_->setEnabled(!registro);
    tdbAno_->setEnabled(!registro);
    pinta(tdbAno_, !registro);
    if (estado == 1 && !anoAtivo_.isEmpty() && tdbAno_->textoMascarado() != anoAtivo_)
        tdbAno_->setText(anoAtivo_);
    const QList<QWidget *> entradas{tdbData_, mskDeb_, mskCre_, txtNrDoc_, txtHist_, tdbVlrcont_};
    if (!registro) {
        tdbData_->limpa();
        txtNrDoc_->clear();
        txtHist_->clear();
        tdbVlrcont_->clear();
        reiniciaMascaras();
    }
    for (QWidget *w : entradas) {
        w->setEnabled(registro);
        pinta(w, registro);
    }
    mskCodigo_->setEnabled(estado == 1);
    pinta(mskCodigo_, estado == 1);
}

void frmMov::reiniciaMascaras()
{
    mskCodigo_->setMascara(QStringLiteral("######"));
    mskCodigo_->clear();
    mskDeb_->setMascara(QStringLiteral("##.###"));
    mskDeb_->clear();
    mskCre_->setMascara(QStringLiteral("##.###"));
    mskCre_->clear();
    lblDebito_->clear();
    lblCredito_->clear();
}

void frmMov::tdbAno_LostFocus()
{
    if (tdbAno_->vazio())
        tdbAno_->setText(QString::number(QDate::currentDate().year()));
    const QString ano = tdbAno_->textoMascarado();
    const QString tabela = tabelaDoAno(ano);
    // A year without its journal table would fail on every statement: it is
    // refused before anything is written.
    if (!existeTabelaAno(cn_, tabela)) {
        MsgBox(semTabelaDoAno(ano),
               vbExclamation, kAtencao);
        QTimer::singleShot(0, tdbAno_, [this] {
            if (!fechando(*this))
                tdbAno_->setFocus();
        });
        return;
    }
    cn_.Execute(QStringLiteral("UPDATE Parametros Set ano_mov = #01/01/") + ano + QStringLiteral("# Where Codauto = 1"));
    const int a = int(val(ano));
    tdbData_->setMaximo(QDate(2008, 12, 31));
    tdbData_->setMinimo(QDate(a, 1, 1));
    dataPadrao_ = QDate(a, 1, 1);
    tdbData_->setMaximo(QDate(a, 12, 31));
    anoAtivo_ = ano;
    tabela_ = tabela;
    Recordset rs = cn_.Execute(QStringLiteral("SELECT codauto FROM ") + tabela_ + QStringLiteral(" WHERE codauto = ( SELECT MAX (codauto) FROM ")
                               + tabela_ + QStringLiteral(")"));
    if (rs.eof()) {
        proximo_ = 1;
    } else {
        const qint64 n = rs[QStringLiteral("codauto")].toInt() + 1;
        if (n > 32767)
            throw RunFailure(QStringLiteral("Estouro de capacidade"));
        proximo_ = qint16(n);
    }
    TrocaEstado(1);
    mskCodigo_->setFocus();
}

void frmMov::cmdTrocaano_Click()
{
    anoConfirmado_ = false;
    tdbAno_->setEnabled(true);
    tdbAno_->setFocus();
}

void frmMov::mskCodigo_LostFocus()
{
    const QString puro = mskCodigo_->textoPuro();
    if (puro.isEmpty()) {
        reiniciaMascaras();
        return;
    }
    const QString numero = ZeroEsq(puro, 6);
    mskCodigo_->setText(numero);
    if (numero == QLatin1String("000000")) {
        reiniciaMascaras();
        QTimer::singleShot(0, mskCodigo_, [this] { mskCodigo_->setFocus(); });
        return;
    }
    const double valor = val(numero);
    if (valor <= 0)
        return;
    Recordset rs = cn_.Execute(QStringLiteral("Select * FROM ") + tabela_ + QStringLiteral(" Where codauto = ")
                               + QString::number(qint64(valor)));
    if (rs.eof()) {
        if (!novo_) {
            MsgBox(QStringLiteral("Lançamento não cadastrado, Utilize o botão Novo ou \"Alt + N\" para novos lançamentos !"),
                   vbExclamation, kAtencao);
            TrocaEstado(1);
            QTimer::singleShot(0, mskCodigo_, [this] { mskCodigo_->setFocus(); });
        }
        return;
    }
    novo_ = false;
    TrocaEstado(2);
    mskCodigo_->setText(numero);
    tdbData_->setData(rs[QStringLiteral("datalan")].toDate());
    mskDeb_->setText(rs[QStringLiteral("ctadeb")].text());
    mskCre_->setText(rs[QStringLiteral("ctacre")].text());
    txtNrDoc_->setText(rs[QStringLiteral("nrdoc")].text());
    txtHist_->setText(rs[QStringLiteral("histlan")].text());
    tdbVlrcont_->setText(formatNumber(rs[QStringLiteral("vlrlan")].toDouble(), kPicture));
    const QString irregular = QStringLiteral("*** Conta Não Cadastrada ou Irregular ***");
    mostraConta(mskDeb_, lblDebito_, irregular);
    mostraConta(mskCre_, lblCredito_, irregular);
    passoDoFoco();
}

void frmMov::passoDoFoco()
{
    mskCodigo_->setEnabled(false);
    pinta(mskCodigo_, false);
    if (novo_)
        tdbData_->setData(dataPadrao_);
    tdbData_->setFocus();
}

QString frmMov::nomeDaConta(const QString &codigo)
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM Plano WHERE codigo = '") + codigo + QStringLiteral("'"));
    return rs.eof() ? QString() : rs[QStringLiteral("nome")].text();
}

void frmMov::mostraConta(MaskEdit *campo, QLabel *rotulo, const QString &naoAchou)
{
    if (campo->textoMascarado() == kContaVazia)
        return;
    const QString nome = nomeDaConta(campo->textoMascarado());
    rotulo->setText(nome.isEmpty() ? naoAchou : nome);
}

void frmMov::confereValor()
{
    double valor = 0;
    if (!tdbVlrcont_->isEnabled())
        return;
    if (valorDigitado(tdbVlrcont_->text(), valor)) {
        if (!tdbVlrcont_->text().trimmed().isEmpty())
            tdbVlrcont_->setText(formatNumber(valor, kPicture));
        return;
    }
    MsgBox(QStringLiteral("Valor inválido, digite o valor como 1.234,56 !"), vbExclamation, kAtencao);
    QTimer::singleShot(0, tdbVlrcont_, [this] {
        if (!fechando(*this)) {
            tdbVlrcont_->setFocus();
            tdbVlrcont_->selectAll();
        }
    });
}

void frmMov::cmdNovo_Click()
{
    anoConfirmado_ = true;
    novo_ = true;
    TrocaEstado(3);
    mskCodigo_->setText(ZeroEsq(QString::number(proximo_), 6));
    passoDoFoco();
}

void frmMov::cmdGravar_Click()
{
    LimpaErros();
    if (tdbData_->textoMascarado() == kEmptyDate)
        AnotaErro(kErroFatal, QStringLiteral("Todo lançamento deve ter uma data válida!"));
    else if (!tdbData_->valido())
        AnotaErro(kErroFatal, QStringLiteral("A data do lançamento deve estar dentro do ano ativo (01/01/%1 a 31/12/%1) !").arg(anoAtivo_));
    if (mskCodigo_->textoMascarado() == QLatin1String("______"))
        AnotaErro(kErroFatal, QStringLiteral("O Campo Número do Lançamento é Obrigatório !"));
    const QString deb = mskDeb_->textoMascarado();
    const QString cre = mskCre_->textoMascarado();
    if (deb == kContaVazia)
        AnotaErro(kErroFatal, QStringLiteral("A conta de Débito é Obrigatória !"));
    else if (cn_.Execute(QStringLiteral("SELECT nome FROM Plano WHERE codigo = '") + deb + QStringLiteral("'")).eof())
        AnotaErro(kErroFatal, QStringLiteral("Conta a Débito Não Cadastrada ou Irregular, verifique o Plano de Contas !"));
    if (cre == kContaVazia)
        AnotaErro(kErroFatal, QStringLiteral("A conta de Crédito é Obrigatória !"));
    else if (cn_.Execute(QStringLiteral("SELECT nome FROM Plano WHERE codigo = '") + cre + QStringLiteral("'")).eof())
        AnotaErro(kErroFatal, QStringLiteral("Conta a Crédito Não Cadastrada ou Irregular, verifique o Plano de Contas !"));
    double valor = 0;
    if (!valorDigitado(tdbVlrcont_->text(), valor))
        AnotaErro(kErroFatal, QStringLiteral("Valor inválido, digite o valor como 1.234,56 !"));
    // The same account on both sides moves no balance; the accountant decides.
    if (deb != kContaVazia && deb == cre)
        AnotaErro(kAlertaErro, QStringLiteral("A conta de débito é igual à de crédito: o lançamento não altera saldo algum."));
    session.temErros = session.qtErros > 1;
    if (session.temErros) {
        frmErros erros(this);
        showModal(erros);
        if (session.cancelaGrava) {
            session.cancelaGrava = false;
            return;
        }
    }
    const QString data = tdbData_->textoMascarado();
    const QString quantia = QString::number(valor, 'f', 2);
    const bool eraNovo = novo_;
    if (novo_) {
        session.sql = QStringLiteral("INSERT INTO ") + tabela_ + QStringLiteral(" (datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan) ")
                      + QStringLiteral(" VALUES('") + data + QStringLiteral("',\"") + deb + QStringLiteral("\",\"") + cre
                      + QStringLiteral("\",\"") + txtNrDoc_->text() + QStringLiteral("\",\"") + txtHist_->text()
                      + QStringLiteral("\",'") + quantia + QStringLiteral("')");
        cn_.Execute(session.sql);
        proximo_ = qint16(proximo_ + 1);
        dataPadrao_ = tdbData_->data();
    } else {
        session.sql = QStringLiteral("Update ") + tabela_ + QStringLiteral(" Set datalan = \"") + data
                      + QStringLiteral("\",ctadeb = \"") + deb + QStringLiteral("\",ctacre = \"") + cre
                      + QStringLiteral("\",nrdoc = \"") + txtNrDoc_->text() + QStringLiteral("\",histlan = \"")
                      + txtHist_->text() + QStringLiteral("\",vlrlan = '") + quantia + QStringLiteral("'")
                      + QStringLiteral(" Where codauto = ") + QString::number(qint64(val(mskCodigo_->textoPuro())));
        cn_.Execute(session.sql);
    }
    novo_ = false;
    TrocaEstado(1);
    // After an insertion the next entry is one key away.
    (eraNovo ? static_cast<QWidget *>(cmdNovo_) : mskCodigo_)->setFocus();
}

void frmMov::cmdApagar_Click()
{
    if (MsgBox(QStringLiteral("Deseja Realmente Excluir Este Registro ?"), vbYesNo + vbCritical, kAtencao) != vbYes)
        return;
    cn_.Execute(QStringLiteral("DELETE FROM ") + tabela_ + QStringLiteral(" WHERE codauto = ")
                + QString::number(qint64(val(mskCodigo_->textoPuro()))));
    TrocaEstado(1);
    mskCodigo_->setFocus();
}

void frmMov::cmdCancelar_Click()
{
    novo_ = false;
    TrocaEstado(1);
    mskCodigo_->setFocus();
}

void frmMov::cmdPesqPCta_Click()
{
    if (!abrePesquisa(this, QStringLiteral("frmPesqPlano"), QStringLiteral("Pesquisa do Plano de Contas"), QStringLiteral("Plano")))
        return;
    // A filled debit field sends the choice to the credit field.
    const bool debito = mskDeb_->textoMascarado() == kContaVazia;
    MaskEdit *campo = debito ? mskDeb_ : mskCre_;
    campo->setFocus();
    campo->setText(session.valorPesq.trimmed());
    // What the Tab after the choice does: the account's name beside it.
    mostraConta(campo, debito ? lblDebito_ : lblCredito_, QStringLiteral("Conta Não Cadastrada, pesquise !"));
}

void frmMov::cmdPesquisar_Click()
{
    if (val(mskCodigo_->textoPuro()) != 0)
        return;
    if (!abrePesquisa(this, QStringLiteral("frmMovPesq"), QStringLiteral("Pesquisa de Lançamentos"), tabela_)) {
        mskCodigo_->setFocus();
        return;
    }
    mskCodigo_->setFocus();
    mskCodigo_->setText(session.valorPesq.trimmed());
    // What the Tab after the choice does: the entry is loaded.
    mskCodigo_LostFocus();
}

void frmMov::closeEvent(QCloseEvent *event)
{
    if (cmdGravar_->isEnabled()) {
        event->ignore();
        MsgBox(QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele !"), vbCritical,
               QStringLiteral("Atenção"));
        return;
    }
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
