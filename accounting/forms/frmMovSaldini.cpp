#include "accounting/forms/frmMovSaldini.h"

#include "accounting/forms/gradeplano.h"
#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/transaction.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmMovSaldini.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

frmMovSaldini::frmMovSaldini(QWidget *parent) : QWidget(parent)
{
    Ui::frmMovSaldini ui;
    ui.setupUi(this);
    tdbAnomes_ = ui.tdbAnomes;
    chkAnoCheio_ = ui.chkAnoCheio;
    tdgPlano_ = ui.tdgPlano;
    cmdGravar_ = ui.cmdGravar;
    cmdSair_ = ui.cmdSair;
    tdbAnomes_->setFormato(DateField::MesAno);
    gradeplano::prepara(*tdgPlano_, QStringLiteral("Saldo"), [this] { cmdGravar_->setEnabled(true); });
    connect(ui.cmdSomar, &QPushButton::clicked, this, &frmMovSaldini::cmdSomar_Click);
    connect(cmdGravar_, &QPushButton::clicked, this, &frmMovSaldini::cmdGravar_Click);
    connect(ui.cmdCarregaS, &QPushButton::clicked, this, &frmMovSaldini::cmdCarregaS_Click);
    connect(ui.cmdImprimir, &QPushButton::clicked, this, &frmMovSaldini::cmdImprimir_Click);
    connect(cmdSair_, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    connect(ui.cmdTrocames, &QPushButton::clicked, this, [this] {
        chkAnoCheio_->setEnabled(true);
        tdbAnomes_->setEnabled(true);
        tdbAnomes_->setFocus();
    });
    for (QPushButton *b : findChildren<QPushButton *>())
        b->setAutoDefault(false);
    aoPerderFoco(chkAnoCheio_, [this] {
        if (chkAnoCheio_->isEnabled() && QApplication::focusWidget() != cmdSair_)
            chkAnoCheio_LostFocus();
    });
    aoPerderFoco(tdbAnomes_, [this] {
        if (!tdbAnomes_->vazio() && tdbAnomes_->data().isValid())
            return;
        MsgBox(QStringLiteral("É obrigatório fixar um ano/mês válido, este campo não pode ficar vazio !"), vbExclamation,
               QStringLiteral("Atenção..."));
        QTimer::singleShot(0, tdbAnomes_, [this] {
            if (!fechando(*this))
                tdbAnomes_->setFocus();
        });
    });
    aplicaTeclado(*this);
    cmdGravar_->setEnabled(false);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT mes_movsaldini, ano_cheioSaldini FROM parametros"));
    if (rs.eof()) {
        MsgBox(QStringLiteral("Atenção, Problema no Cadastro de Parâmetros !"));
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    if (rs[QStringLiteral("mes_movsaldini")].isNull())
        tdbAnomes_->setData(QDate(2004, 1, 1));
    else
        tdbAnomes_->setData(rs[QStringLiteral("mes_movsaldini")].toDate());
    chkAnoCheio_->setChecked(rs[QStringLiteral("ano_cheioSaldini")].toBool() && tdbAnomes_->data().month() == 1);
    escolheColuna();
    const qint16 contas = qint16(cn_.Execute(QStringLiteral("SELECT Count(codigo) as Y FROM plano"))[QStringLiteral("Y")].toInt() - 1);
    if (contas == 0) {
        MsgBox(QStringLiteral("Atenção, não há nenhuma conta cadastrado !"));
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    enche();
}

frmMovSaldini::~frmMovSaldini()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmMovSaldini::escolheColuna()
{
    const int mes = tdbAnomes_->data().month();
    coluna_ = chkAnoCheio_->isChecked() && mes == 1 ? QStringLiteral("sf00") : colunaMes(QStringLiteral("sf"), mes);
}

void frmMovSaldini::enche()
{
    gradeplano::enche(*tdgPlano_, cn_, coluna_);
    cmdGravar_->setEnabled(false);
}

QString frmMovSaldini::mesano() const
{
    const QDate d = tdbAnomes_->data();
    return formatDate(QDate(d.year(), d.month(), chkAnoCheio_->isChecked() ? 11 : 1), QStringLiteral("mm/dd/yyyy"));
}

void frmMovSaldini::chkAnoCheio_LostFocus()
{
    const QDate d = tdbAnomes_->data();
    if (!d.isValid())
        return;
    cn_.Execute(QStringLiteral("UPDATE parametros SET mes_movsaldini = '") + formatDate(d, QStringLiteral("dd/mm/yyyy"))
                + QStringLiteral("',ano_cheioSaldini = ")
                + (chkAnoCheio_->isChecked() ? QStringLiteral("True") : QStringLiteral("False"))
                + QStringLiteral(" WHERE codauto = 1"));
    chkAnoCheio_->setEnabled(false);
    tdbAnomes_->setEnabled(false);
    escolheColuna();
    cn_.Execute(QStringLiteral("SELECT Count(codigo) as Y FROM plano"));
    enche();
    tdgPlano_->setFocus();
}

void frmMovSaldini::cmdSomar_Click() { gradeplano::somaSinteticas(*tdgPlano_); }

void frmMovSaldini::cmdGravar_Click()
{
    cmdSomar_Click();
    const QString data = mesano();
    // The chart and its keeping copy change together or not at all.
    Transaction passo(cn_);
    cn_.Execute(QStringLiteral("DELETE FROM Saldini WHERE mesano = #") + data + u'#');
    for (int r = 0; r < gradeplano::linhas(*tdgPlano_); ++r) {
        const QString codigo = gradeplano::codigo(*tdgPlano_, r);
        const QString saldo = gradeplano::valorSql(*tdgPlano_, r);
        cn_.Execute(QStringLiteral("Update plano Set ") + coluna_ + QStringLiteral(" = '") + saldo + QStringLiteral("' ")
                    + QStringLiteral("Where codigo = '") + codigo + u'\'');
        if (gradeplano::valor(*tdgPlano_, r) != 0)
            cn_.Execute(QStringLiteral("INSERT INTO Saldini(mesano,codcta,saldo) VALUES(#") + data + QStringLiteral("#,'")
                        + codigo + QStringLiteral("','") + saldo + QStringLiteral("')"));
    }
    passo.commit();
    cmdGravar_->setEnabled(false);
}

void frmMovSaldini::cmdCarregaS_Click()
{
    const QString data = mesano();
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Saldini WHERE mesano =#") + data + u'#');
    if (rs.eof()) {
        MsgBox(QStringLiteral("Não existem saldos cadastrados nesta data... verifique !"), vbOKOnly, QStringLiteral("Atenção..."));
        return;
    }
    Transaction passo(cn_);
    for (; !rs.eof(); rs.moveNext())
        cn_.Execute(QStringLiteral("UPDATE plano SET ") + coluna_ + QStringLiteral(" = Round('") + rs[QStringLiteral("saldo")].text()
                    + QStringLiteral("',2) WHERE codigo = '") + rs[QStringLiteral("codcta")].text() + u'\'');
    passo.commit();
    enche();
    cmdSomar_Click();
}

void frmMovSaldini::cmdImprimir_Click()
{
    if (cmdGravar_->isEnabled())
        cmdGravar_Click();
    const QDate d = tdbAnomes_->data();
    const QString ano = QString::number(d.year());
    const QString titulo = coluna_ == QLatin1String("sf00")
                               ? QStringLiteral("Saldos Iniciais ") + QStringLiteral("01/01/") + ano
                               : QStringLiteral("Saldos Iniciais ") + NomeMes(d.month()) + u'/' + ano;
    const QString coluna = coluna_;
    Recordset rs;
    // Devedor and Credor split the balances of the analytic accounts by their
    // sign, so that the two totals show the set balances.
    ImprimeRelatorio(cn_, rs,
                     QStringLiteral("SELECT codigo,nome,tipo,classe,sintetico,") + coluna
                         + QStringLiteral(" FROM Plano ORDER BY codigo"),
                     {QStringLiteral("Codigo"), QStringLiteral("Nome"), QStringLiteral("Tipo"), QStringLiteral("Classe"),
                      QStringLiteral("Sintetico"), QStringLiteral("Ano1"), QStringLiteral("Devedor"), QStringLiteral("Credor")},
                     QStringLiteral("MovSi.rpt"), QStringLiteral("Saldos Iniciais"), {{QStringLiteral("Titu"), titulo}},
                     [coluna](const Recordset &r) {
                         const bool sintetico = r[QStringLiteral("sintetico")].toBool();
                         const double v = r[coluna].toDouble();
                         QStringList l{r[QStringLiteral("codigo")].text().trimmed(), r[QStringLiteral("nome")].text(),
                                       r[QStringLiteral("tipo")].text(), r[QStringLiteral("classe")].text(),
                                       r[QStringLiteral("sintetico")].text(), r[coluna].text()};
                         l << (!sintetico && v > 0 ? r[coluna].text() : QString())
                           << (!sintetico && v < 0 ? moneyText(Money::fromDouble(-v)) : QString());
                         return l;
                     });
}

void frmMovSaldini::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
