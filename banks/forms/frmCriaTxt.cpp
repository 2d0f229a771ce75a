#include "banks/forms/frmCriaTxt.h"

#include "accounting/balancete.h"
#include "banks/bcodiversos.h"
#include "banks/demonstrativo.h"
#include "core/conversions.h"
#include "core/errors.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmCriaTxt.h"

#include <QDir>
#include <QFile>

frmCriaTxt::frmCriaTxt(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmCriaTxt>())
{
    ui_->setupUi(this);
    ui_->tdbMesano->setFormato(DateField::MesAno);
    ui_->cmbModelo->addItem(kDemonstrativoModelo1);
    ui_->cmbModelo->addItem(kDemonstrativoModelo2);
    ui_->cmbModelo->setCurrentIndex(-1);
    for (const QFileInfo &d : QDir::drives())
        ui_->driDrivetxt->addItem(d.absolutePath());
    connect(ui_->cmdPastatxt, &QPushButton::clicked, this, &frmCriaTxt::cmdPastatxt_Click);
    connect(ui_->cmdGerarTexto, &QPushButton::clicked, this, &frmCriaTxt::cmdGerarTexto_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM RbalRec"));
    const bool temMes = !rs.eof() && !rs[QStringLiteral("mesbase")].isNull();
    ui_->tdbMesano->setData(temMes ? rs[QStringLiteral("mesbase")].toDate() : QDate(2004, 1, 1));
    if (!rs.eof()) {
        const int modelo = int(rs[QStringLiteral("modelo")].text().toInt());
        if (modelo == 1 || modelo == 2)
            ui_->cmbModelo->setCurrentIndex(modelo - 1);
        QStringList extras;
        for (int n = 1; n <= 4; ++n)
            if (!rs[QStringLiteral("LinAdic%1").arg(n)].text().isEmpty())
                extras << rs[QStringLiteral("LinAdic%1").arg(n)].text();
        ui_->txtLinAdic->setPlainText(extras.join(u'\n'));
    }
    ui_->dirPastatxt->setText(QDir(session.sysPath).absolutePath());
    ui_->txtNometxt->setText(QStringLiteral("_") + QDate::currentDate().toString(QStringLiteral("ddMM")));
}

frmCriaTxt::~frmCriaTxt()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmCriaTxt::cmdPastatxt_Click()
{
    const QString pasta = escolheArquivo(this, EscolhaArquivo::Pasta, QStringLiteral("Pasta"), ui_->dirPastatxt->text());
    if (!pasta.isEmpty())
        ui_->dirPastatxt->setText(QDir(pasta).absolutePath());
}

void frmCriaTxt::cmdGerarTexto_Click()
{
    if (ui_->txtNometxt->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Você não selecionou nenhum arquivo texto, tente novamente !"), vbExclamation,
               QStringLiteral("Atenção..."));
        return;
    }
    if (ui_->tdbMesano->text() == kEmptyMonthYear || !ui_->tdbMesano->data().isValid()
        || ui_->cmbModelo->currentIndex() < 0) {
        MsgBox(QStringLiteral("Você não determinou o mês/ano base e/ou o modelo do relatório"), vbExclamation,
               QStringLiteral("Atenção..."));
        return;
    }
    const QString caminho = caminhoTextoDemonstrativo(ui_->dirPastatxt->text(), ui_->txtNometxt->text());
    if (QFile::exists(caminho)) {
        if (MsgBox(QStringLiteral("Já existe um arquivo com este nome no local indicado, sobregrava ?"),
                   vbYesNo + vbQuestion + vbDefaultButton2, QStringLiteral("Atenção"))
            == vbNo)
            return;
        QFile::remove(caminho);
    }
    const QDate mes = ui_->tdbMesano->data();
    const int modelo = ui_->cmbModelo->currentIndex() + 1;
    Ampulheta ampulheta;
    // The statement reads the month's trial balance: it is filled first.
    Monta_Balancete(cn_, QString::number(mes.month()), QString::number(mes.year()));
    TotaisDemonstrativo totais;
    Monta_Demonstrativo(cn_, totais, modelo, QString::number(mes.month()), QString::number(mes.year()));
    if (!escreveTextoDemonstrativo(caminho, ui_->txtLinAdic->toPlainText().split(u'\n')))
        throw RunFailure(QStringLiteral("Não foi possível criar o arquivo ") + caminho);
    cn_.Execute(QStringLiteral("UPDATE rbalrec SET mesbase = #") + mes.toString(QStringLiteral("MM/dd/yyyy"))
                + QStringLiteral("#, modelo = '") + QString::number(modelo) + QStringLiteral("' Where codigo = 1"));
}
