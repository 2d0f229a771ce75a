#include "reporting/forms/relcadastro.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

RelatorioCadastroForm::RelatorioCadastroForm(const RelatorioCadastro &relatorio, QWidget *parent)
    : QWidget(parent), relatorio_(relatorio)
{
}

RelatorioCadastroForm::~RelatorioCadastroForm()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void RelatorioCadastroForm::liga()
{
    setWindowTitle(relatorio_.titulo);
    txtTitu_ = findChild<QLineEdit *>(QStringLiteral("txtTitu"));
    findChild<QRadioButton *>(relatorio_.ordens.first().opcao)->setChecked(true);
    connect(findChild<QPushButton *>(QStringLiteral("cmdImprimir")), &QPushButton::clicked, this,
            &RelatorioCadastroForm::cmdImprimir_Click);
    connect(findChild<QPushButton *>(QStringLiteral("cmdSair")), &QPushButton::clicked, this,
            [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.Open(session.conAtiva);
}

void RelatorioCadastroForm::cmdImprimir_Click()
{
    QString sql = relatorio_.ordens.first().sql;
    for (const OrdemRelatorio &o : relatorio_.ordens)
        if (findChild<QRadioButton *>(o.opcao)->isChecked())
            sql = o.sql;
    ReportFormulas formulas;
    if (txtTitu_)
        formulas.append({QStringLiteral("Titu"), txtTitu_->text()});
    Recordset rs;
    if (!ImprimeRelatorio(cn_, rs, sql, relatorio_.colunas, relatorio_.modelo, relatorio_.titulo, formulas,
                          relatorio_.linha)
        && !relatorio_.semLinhas.isEmpty())
        MsgBox(relatorio_.semLinhas, vbExclamation, QStringLiteral("Atenção"));
}

void RelatorioCadastroForm::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
