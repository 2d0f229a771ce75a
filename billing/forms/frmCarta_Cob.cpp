#include "billing/forms/frmCarta_Cob.h"

#include "billing/cartas.h"
#include "billing/forms/relatoriofin.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmCarta_Cob.h"

#include <QDate>

static const QString kTitulo = QStringLiteral("Carta de Cobrança");

frmCarta_Cob::frmCarta_Cob(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmCarta_Cob>())
{
    ui_->setupUi(this);
    ui_->tdbInicio->setFormato(DateField::MesAno);
    ui_->tdbFim->setFormato(DateField::MesAno);
    connect(ui_->chkGeral, &QCheckBox::toggled, this, [this](bool todos) {
        ui_->mskCodAp->setEnabled(!todos);
        ui_->cmdPesqAp->setEnabled(!todos);
    });
    ligaCampoApto(cn_, ui_->mskCodAp, ui_->cmdPesqAp, ui_->lblNome);
    liga();
    const CartaCobranca c = leCarta(cn_);
    ui_->txtTitulo->setText(c.titulo);
    ui_->txtLocal->setText(c.local);
    ui_->tdbInicio->setText(c.inicio);
    ui_->tdbFim->setText(c.fim);
}

frmCarta_Cob::~frmCarta_Cob() = default;

void frmCarta_Cob::cmdImprimir_Click()
{
    CartaCobranca c{ui_->txtTitulo->text(), ui_->txtLocal->text(), ui_->tdbInicio->textoMascarado(),
                    ui_->tdbFim->textoMascarado()};
    const bool geral = ui_->chkGeral->isChecked();
    const QString codap = ui_->mskCodAp->textoPuro();
    if (const auto falta = confereCarta(cn_, c, geral, codap)) {
        MsgBox(*falta, vbExclamation, QStringLiteral("Atenção"));
        if (!periodoCarta(c))
            ui_->tdbInicio->setFocus();
        else if (!geral)
            ui_->mskCodAp->setFocus();
        return;
    }
    const QString modelo = modeloCarta(escolheArquivo(this, EscolhaArquivo::Abrir, kTitulo, session.sysPath, kFiltroCartas),
                                       session.sysPath);
    if (modelo.isEmpty()) {
        MsgBox(QStringLiteral("É obrigatório estabelecer um arquivo !"), vbExclamation, QStringLiteral("Atenção"));
        return;
    }
    Recordset rs;
    ImprimeRelatorio(cn_, rs, sqlCarta(*periodoCarta(c), geral, codap), colunasCarta(), modelo, kTitulo,
                     {{QStringLiteral("Local"), localData(c.local, QDate::currentDate())},
                      {QStringLiteral("Titu"), c.titulo}});
    cn_.Execute(sqlGravaCarta(c));
}
