#include "accounting/forms/frmMovpo.h"

#include "accounting/forms/gradeplano.h"
#include "core/conversions.h"
#include "core/errors.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/transaction.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmMovpo.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

frmMovpo::frmMovpo(QWidget *parent) : QWidget(parent)
{
    Ui::frmMovpo ui;
    ui.setupUi(this);
    tdbAnomes_ = ui.tdbAnomes;
    tdgPlano_ = ui.tdgPlano;
    cmdGravar_ = ui.cmdGravar;
    cmdSair_ = ui.cmdSair;
    tdbAnomes_->setFormato(DateField::MesAno);
    gradeplano::prepara(*tdgPlano_, QStringLiteral("Previsto"), [this] { cmdGravar_->setEnabled(true); });
    connect(ui.cmdSomar, &QPushButton::clicked, this, &frmMovpo::cmdSomar_Click);
    connect(cmdGravar_, &QPushButton::clicked, this, &frmMovpo::cmdGravar_Click);
    connect(ui.cmdImprimir, &QPushButton::clicked, this, &frmMovpo::cmdImprimir_Click);
    connect(cmdSair_, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    connect(ui.cmdTrocames, &QPushButton::clicked, this, [this] {
        tdbAnomes_->setEnabled(true);
        tdbAnomes_->setFocus();
    });
    for (QPushButton *b : findChildren<QPushButton *>())
        b->setAutoDefault(false);
    aoPerderFoco(tdbAnomes_, [this] {
        if (tdbAnomes_->isEnabled() && QApplication::focusWidget() != cmdSair_)
            tdbAnomes_LostFocus();
    });
    aplicaTeclado(*this);
    cmdGravar_->setEnabled(false);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT mes_movpo FROM parametros"));
    if (rs.eof() || rs[QStringLiteral("mes_movpo")].isNull()) {
        sufixo_ = QStringLiteral("0201");
        tdbAnomes_->setData(QDate(2002, 1, 1));
    } else {
        const QDate d = rs[QStringLiteral("mes_movpo")].toDate();
        sufixo_ = formatDate(d, QStringLiteral("yymm"));
        tdbAnomes_->setData(d);
    }
    const qint16 contas = qint16(cn_.Execute(QStringLiteral("SELECT Count(codigo) as Y FROM plano"))[QStringLiteral("Y")].toInt() - 1);
    if (contas == 0) {
        MsgBox(QStringLiteral("Atenção, não há nenhuma conta cadastrado !"), vbInformation);
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    enche();
}

frmMovpo::~frmMovpo()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

bool frmMovpo::enche()
{
    // The chart carries budget columns for January 2002 to December 2008 only;
    // another month is told plainly instead of failing on the statement.
    try {
        gradeplano::enche(*tdgPlano_, cn_, QStringLiteral("po") + sufixo_);
    } catch (const DatabaseError &e) {
        if (!e.message().contains(QLatin1String("no such column")))
            throw;
        tdgPlano_->setRowCount(0);
        MsgBox(QStringLiteral("O plano de contas não tem previsão orçamentária para %1 (só de 01/2002 a 12/2008) !")
                   .arg(tdbAnomes_->textoMascarado()),
               vbExclamation, QStringLiteral("Atenção..."));
        return false;
    }
    cmdGravar_->setEnabled(false);
    return true;
}

void frmMovpo::tdbAnomes_LostFocus()
{
    const QDate d = tdbAnomes_->data();
    if (tdbAnomes_->vazio() || !d.isValid()) {
        MsgBox(QStringLiteral("É obrigatório fixar um ano/mês válido, este campo não pode ficar vazio !"), vbExclamation,
               QStringLiteral("Atenção..."));
        QTimer::singleShot(0, tdbAnomes_, [this] {
            if (!fechando(*this))
                tdbAnomes_->setFocus();
        });
        return;
    }
    cn_.Execute(QStringLiteral("UPDATE parametros SET mes_movpo = '") + formatDate(d, QStringLiteral("dd/mm/yyyy"))
                + QStringLiteral("' WHERE codauto = 1"));
    sufixo_ = formatDate(d, QStringLiteral("yymm"));
    tdbAnomes_->setEnabled(false);
    if (!enche()) {
        tdbAnomes_->setEnabled(true);
        QTimer::singleShot(0, tdbAnomes_, [this] {
            if (!fechando(*this))
                tdbAnomes_->setFocus();
        });
        return;
    }
    tdgPlano_->setFocus();
}

void frmMovpo::cmdSomar_Click() { gradeplano::somaSinteticas(*tdgPlano_); }

void frmMovpo::cmdGravar_Click()
{
    cmdSomar_Click();
    const QString coluna = QStringLiteral("po") + sufixo_;
    Transaction passo(cn_);
    for (int r = 0; r < gradeplano::linhas(*tdgPlano_); ++r)
        cn_.Execute(QStringLiteral("UPDATE plano Set ") + coluna + QStringLiteral(" = '") + gradeplano::valorSql(*tdgPlano_, r)
                    + QStringLiteral("' ") + QStringLiteral("WHERE codigo = '") + gradeplano::codigo(*tdgPlano_, r) + u'\'');
    passo.commit();
    cmdGravar_->setEnabled(false);
}

void frmMovpo::cmdImprimir_Click()
{
    if (cmdGravar_->isEnabled())
        cmdGravar_Click();
    if (tdgPlano_->rowCount() == 0)
        return;
    const QDate d = tdbAnomes_->data();
    const QString coluna = QStringLiteral("po") + sufixo_;
    Recordset rs;
    // Receita and Despesa repeat the amounts of the analytic revenue and
    // expense accounts: their sums are the month's planned totals.
    ImprimeRelatorio(cn_, rs,
                     QStringLiteral("SELECT codigo,nome,tipo,classe,sintetico,") + coluna
                         + QStringLiteral(" FROM Plano ORDER BY codigo"),
                     {QStringLiteral("Codigo"), QStringLiteral("Nome"), QStringLiteral("Tipo"), QStringLiteral("Classe"),
                      QStringLiteral("Sintetico"), QStringLiteral("Ano1"), QStringLiteral("Receita"), QStringLiteral("Despesa")},
                     QStringLiteral("MovPo.rpt"), QStringLiteral("Previsão Orçamentária"),
                     {{QStringLiteral("Titu"),
                       QStringLiteral("Previsão Orçamentária ") + NomeMes(d.month()) + u'/' + QString::number(d.year())}},
                     [coluna](const Recordset &r) {
                         const bool analitica = !r[QStringLiteral("sintetico")].toBool() && r[coluna].toDouble() != 0;
                         const QString tipo = r[QStringLiteral("tipo")].text().trimmed();
                         return QStringList{r[QStringLiteral("codigo")].text().trimmed(), r[QStringLiteral("nome")].text(),
                                            r[QStringLiteral("tipo")].text(), r[QStringLiteral("classe")].text(),
                                            r[QStringLiteral("sintetico")].text(), r[coluna].text(),
                                            analitica && tipo == QLatin1String("R") ? r[coluna].text() : QString(),
                                            analitica && tipo == QLatin1String("D") ? r[coluna].text() : QString()};
                     });
}

void frmMovpo::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
