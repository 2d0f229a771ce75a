#include "reporting/forms/frmNormal.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/listas.h"
#include "ui_frmNormal.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QRadioButton>

frmNormal::frmNormal(QWidget *parent) : QWidget(parent)
{
    Ui::frmNormal ui;
    ui.setupUi(this);
    ui.optPro->setChecked(true);
    ui.optCod->setChecked(true);
    connect(ui.cmdImprimir, &QPushButton::clicked, this, &frmNormal::cmdImprimir_Click);
    connect(ui.cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.Open(session.conAtiva);
}

frmNormal::~frmNormal()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmNormal::cmdImprimir_Click()
{
    auto marcada = [this](const char *nome) { return findChild<QRadioButton *>(QLatin1String(nome))->isChecked(); };
    ArquivoEtiqueta arquivo = ArquivoEtiqueta::Proprietarios;
    if (marcada("optInq"))
        arquivo = ArquivoEtiqueta::Inquilinos;
    else if (marcada("optJur"))
        arquivo = ArquivoEtiqueta::PessoaJuridica;
    else if (marcada("optMao"))
        arquivo = ArquivoEtiqueta::MaoDeObra;
    Recordset rs;
    if (!ImprimeRelatorio(cn_, rs, sqlEtiquetas(arquivo, marcada("optNome")), colunasEtiqueta(),
                          QStringLiteral("EtiqNor.rpt"), QStringLiteral("Etiquetas Normal"), {}, linhaEtiqueta))
        MsgBox(QStringLiteral("Informação não encontrada."), vbExclamation, QStringLiteral("Erro"));
}

void frmNormal::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
