#include "registers/forms/frmPesqEv.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmTEventos.h"
#include "ui_frmPesqEv.h"

#include <QRegularExpressionValidator>
#include <cmath>

namespace {
// The grid's columns, in the order of the column choice's names.
enum Coluna { Codigo, Evento, Tipo, IR, Ref, Valor };
// An amount as shown, "1.234,50", read as a number.
double valor(const QString &texto) { return val(VirgulaPonto(QString(texto).remove(u'.'))); }
QString simNao(const Field &f) { return f.toBool() ? QStringLiteral("Sim") : QStringLiteral("Não"); }
}

frmPesqEv::frmPesqEv(QWidget *parent) : QDialog(parent)
{
    Ui::frmPesqEv ui;
    ui.setupUi(this);
    cmbColuna_ = ui.cmbColuna;
    txtPesq_ = ui.txtPesq;
    cmdOk_ = ui.cmdOk;
    tdbEventos_ = ui.tdbEventos;
    GradeModel *grade = tdbEventos_->modelo();
    grade->setTitulos({QStringLiteral("Código"), QStringLiteral("Evento"), QStringLiteral("Tipo"), QStringLiteral("IR"),
                       QStringLiteral("Ref"), QStringLiteral("Valor")});

    Connection cn;
    cn.ConnectionTimeout = 100;
    cn.Open(session.conAtiva);
    Recordset conta = cn.Execute(QStringLiteral("SELECT Count(codigo) as I FROM eventos"));
    if (conta[QStringLiteral("I")].toInt() == 0) {
        cn.Close();
        MsgBox(QStringLiteral("Atenção, não existem prestações cadastradas nesta condição !"), vbInformation,
               QStringLiteral("Atenção"));
        session.cancelaGrava = true;
        marcaDescarregado(*this);
        return;
    }
    for (Recordset rs = cn.Execute(QStringLiteral("SELECT * FROM eventos")); !rs.eof(); rs.moveNext())
        grade->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text(),
                         nomeTipoEvento(rs[QStringLiteral("tipo")].text()), simNao(rs[QStringLiteral("ir")]),
                         simNao(rs[QStringLiteral("refer")]), formatNumber(rs[QStringLiteral("valor")].toDouble(), QStringLiteral("#,##0.00"))});
    cn.Close();
    grade->sort(Codigo);
    tdbEventos_->ajustaColunas();
    tdbEventos_->posiciona(0);

    connect(ui.cmdPesquisar, &QPushButton::clicked, this, &frmPesqEv::cmdPesquisar_Click);
    connect(cmdOk_, &QPushButton::clicked, this, &frmPesqEv::cmdOk_Click);
    connect(ui.cmdCancela, &QPushButton::clicked, this, [this] { done(QDialog::Rejected); });
    connect(tdbEventos_, &Grade::linhaEscolhida, this, [this](int row) {
        tdbEventos_->posiciona(row);
        cmdOk_Click();
    });
    aoPerderFoco(cmbColuna_, [this] { cmbColuna_LostFocus(); });
    aplicaTeclado(*this);
    cmbColuna_LostFocus();
}

// The search text takes what the chosen column holds: three digits, a yes or
// no (S/N), an amount, or free text.
void frmPesqEv::cmbColuna_LostFocus()
{
    txtPesq_->clear();
    txtPesq_->setInputMask(QString());
    txtPesq_->setValidator(nullptr);
    switch (cmbColuna_->currentIndex()) {
    case Codigo:
        txtPesq_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,3}")), txtPesq_));
        break;
    case IR:
    case Ref:
        txtPesq_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[SsNn]?")), txtPesq_));
        break;
    case Valor:
        txtPesq_->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.]{0,12},?[0-9]{0,2}")), txtPesq_));
        break;
    default:
        break;
    }
}

void frmPesqEv::cmdPesquisar_Click()
{
    const QString texto = txtPesq_->text().trimmed();
    const int coluna = std::max(0, cmbColuna_->currentIndex());
    auto confere = [&](const QString &celula) {
        switch (coluna) {
        case Codigo:
            return !texto.isEmpty() && celula == ZeroEsq(texto, 3);
        case IR:
        case Ref:
            return !texto.isEmpty() && celula.startsWith(texto.left(1), Qt::CaseInsensitive);
        case Valor:
            return !texto.isEmpty() && std::abs(valor(celula) - valor(texto)) < 0.005;
        default:
            return !texto.isEmpty() && celula.startsWith(texto, Qt::CaseInsensitive);
        }
    };
    for (int row = 0; row < tdbEventos_->linhas(); ++row) {
        if (confere(tdbEventos_->texto(row, coluna))) {
            tdbEventos_->posiciona(row);
            cmdOk_->setFocus();
            return;
        }
    }
    txtPesq_->setFocus();
}

void frmPesqEv::cmdOk_Click()
{
    const int row = tdbEventos_->linhaAtual();
    if (row < 0)
        return;
    session.valorPesq = tdbEventos_->texto(row, Codigo);
    confirmou_ = true;
    done(QDialog::Accepted);
}

void frmPesqEv::done(int result)
{
    if (!confirmou_)
        session.cancelaGrava = true;
    QDialog::done(result);
}
