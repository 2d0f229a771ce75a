#include "reporting/forms/frmPadrao.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "reporting/listas.h"
#include "ui_frmPadrao.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QRegularExpressionValidator>

frmPadrao::frmPadrao(QWidget *parent) : QWidget(parent)
{
    Ui::frmPadrao ui;
    ui.setupUi(this);
    txtNvias_ = ui.txtNvias;
    txtL_ = {ui.txtL0, ui.txtL1, ui.txtL2, ui.txtL3};
    txtNvias_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,2}")), this));
    aoPerderFoco(txtNvias_, [this] {
        if (!txtNvias_->text().isEmpty())
            txtNvias_->setText(ZeroEsq(txtNvias_->text(), 2));
    });
    connect(ui.cmdImprimir, &QPushButton::clicked, this, &frmPadrao::cmdImprimir_Click);
    connect(ui.cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Padrao Where Codigo = 1"));
    if (!rs.eof()) {
        txtNvias_->setText(ZeroEsq(rs[QStringLiteral("Nvias")].text(), 2));
        for (int i = 0; i < 4; ++i)
            txtL_[i]->setText(rs[QStringLiteral("L%1").arg(i)].text());
    }
}

frmPadrao::~frmPadrao()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmPadrao::cmdImprimir_Click()
{
    const int folhas = txtNvias_->text().toInt();
    if (folhas < 1) {
        MsgBox(QStringLiteral("Informe o número de folhas a imprimir !"), vbExclamation, QStringLiteral("Atenção"));
        txtNvias_->setFocus();
        return;
    }
    const QString nvias = ZeroEsq(txtNvias_->text(), 2);
    txtNvias_->setText(nvias);
    QStringList linhas;
    for (QLineEdit *t : txtL_)
        linhas << t->text();
    Ampulheta ampulheta;
    cn_.Execute(sqlPadrao(nvias, linhas));

    // One sheet a copy: the document holds every sheet, so that the preview
    // shows what the printer gets.
    ReportData data;
    data.title = QStringLiteral("Etiquetas Padrão");
    data.columns = {QStringLiteral("Folha")};
    for (int f = 1; f <= folhas; ++f)
        for (int i = 0; i < etiquetasPorFolha; ++i)
            data.rows.push_back({QString::number(f)});
    for (int i = 0; i < 4; ++i)
        data.setFormula(QStringLiteral("L%1").arg(i), linhas[i]);
    MostraRelatorio(QStringLiteral("EtiqPadr.rpt"), std::move(data));
}

void frmPadrao::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
