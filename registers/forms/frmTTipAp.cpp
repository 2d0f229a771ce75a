#include "registers/forms/frmTTipAp.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/numberfield.h"
#include "reporting/imprime.h"

#include <QFormLayout>
#include <QFrame>
#include <QLineEdit>

frmTTipAp::frmTTipAp(QWidget *parent) : RecordForm(parent)
{
    setObjectName(QStringLiteral("frmTTipAp"));
    setWindowTitle(QStringLiteral("Tipos de Apartamentos"));
    montaTela(QStringLiteral("Código:"), QStringLiteral("##"));
    txtDescri_ = new QLineEdit(fraDados_);
    txtDescri_->setObjectName(QStringLiteral("txtDescri"));
    txtDescri_->setMaxLength(50);
    txtRateio_ = new NumberField(fraDados_, QStringLiteral("##0.0000"));
    txtRateio_->setObjectName(QStringLiteral("txtRateio"));
    txtRateio_->setMaxLength(12);
    auto *layout = new QFormLayout(fraDados_);
    layout->addRow(QStringLiteral("Descrição:"), txtDescri_);
    layout->addRow(QStringLiteral("Coeficiente de Rateio:"), txtRateio_);
    carrega(session.conAtiva);
}

QString frmTTipAp::normalizaCodigo(const QString &masked) const
{
    const QString bare = bareText(masked);
    return bare.isEmpty() ? QString() : ZeroEsq(bare, 2);
}

QString frmTTipAp::sqlBusca(const QString &c) const { return QStringLiteral("SELECT * FROM TpAp Where codigo = '") + c + u'\''; }
QString frmTTipAp::sqlExiste(const QString &c) const { return QStringLiteral("SELECT codigo FROM TpAp Where codigo = '") + c + u'\''; }
QString frmTTipAp::sqlContagem() const { return QStringLiteral("SELECT Count(codigo) As I FROM TpAp"); }
QString frmTTipAp::sqlLista() const { return QStringLiteral("SELECT * FROM TpAp ORDER BY codigo"); }

QString frmTTipAp::rateioSql() const { return txtRateio_->valorSql(); }

QString frmTTipAp::sqlInsert(const QString &c) const
{
    return QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio)") + QStringLiteral(" VALUES('") + c + QStringLiteral("','")
        + txtDescri_->text() + QStringLiteral("','") + rateioSql() + QStringLiteral("')");
}

QString frmTTipAp::sqlUpdate(const QString &c) const
{
    return QStringLiteral("Update TpAp Set Descri = '") + txtDescri_->text() + QStringLiteral("',")
        + QStringLiteral(" rateio = '") + rateioSql() + u'\'' + QStringLiteral(" Where codigo = '") + c + u'\'';
}

QString frmTTipAp::sqlDelete(const QString &c) const { return QStringLiteral("DELETE FROM TpAp WHERE codigo = '") + c + u'\''; }

void frmTTipAp::carregaCampos(const Recordset &rs)
{
    txtDescri_->setText(rs[QStringLiteral("descri")].text());
    txtRateio_->setValor(rs[QStringLiteral("rateio")].toDouble());
}

void frmTTipAp::validaCampos()
{
    if (txtDescri_->text().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O Campo Descrição é Obrigatório !"));
}

QStringList frmTTipAp::linhaGrade(const Recordset &rs) const
{
    return {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("descri")].text(), rs[QStringLiteral("rateio")].text()};
}

QStringList frmTTipAp::titulosGrade() const { return {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Rateio")}; }

void frmTTipAp::imprime(const QString &)
{
    Recordset rs;
    Ampulheta ampulheta;
    ImprimeRelatorio(cn_, rs, QStringLiteral("SELECT codigo,descri,rateio FROM TpAp"),
                     {QStringLiteral("codigo"), QStringLiteral("descri"), QStringLiteral("rateio")},
                     QStringLiteral("RTpAp.rpt"), QStringLiteral("Tipos de Apartamentos"));
}

QWidget *frmTTipAp::primeiroCampo() const { return txtDescri_; }
