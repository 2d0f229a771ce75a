#include "registers/forms/frmBlocos.h"

#include "core/anotaerro.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "reporting/imprime.h"

#include <QFormLayout>
#include <QFrame>
#include <QLineEdit>

frmBlocos::frmBlocos(QWidget *parent) : RecordForm(parent)
{
    setObjectName(QStringLiteral("frmBlocos"));
    setWindowTitle(QStringLiteral("Cadastro de Blocos"));
    montaTela(QStringLiteral("Código:"), QStringLiteral("####"));
    txtDescri_ = new QLineEdit(fraDados_);
    txtDescri_->setObjectName(QStringLiteral("txtDescri"));
    txtDescri_->setMaxLength(50);
    auto *layout = new QFormLayout(fraDados_);
    layout->addRow(QStringLiteral("Descrição:"), txtDescri_);
    carrega(session.conAtiva);
}

QString frmBlocos::normalizaCodigo(const QString &masked) const
{
    // "01__" is the block 01; "0101" its subgroup; anything else is no code.
    const QString bare = masked.left(4);
    if (bare.size() == 4 && !bare.contains(u'_'))
        return bare;
    if (bare.mid(2).remove(u'_').isEmpty() && !bare.left(2).contains(u'_'))
        return bare.left(2);
    return QString();
}

QString frmBlocos::sqlBusca(const QString &c) const { return QStringLiteral("SELECT * FROM Grupos Where codgrupo = '") + c + u'\''; }
QString frmBlocos::sqlExiste(const QString &c) const { return QStringLiteral("SELECT codgrupo FROM Grupos Where codgrupo = '") + c + u'\''; }
QString frmBlocos::sqlContagem() const { return QStringLiteral("SELECT Count(codgrupo) As I FROM Grupos"); }
QString frmBlocos::sqlLista() const { return QStringLiteral("SELECT * FROM grupos ORDER BY codgrupo"); }

QString frmBlocos::sqlInsert(const QString &c) const
{
    return QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri)") + QStringLiteral(" VALUES('") + c + QStringLiteral("',")
        + (c.size() == 2 ? QStringLiteral("True,") : QStringLiteral("False,")) + u'\'' + txtDescri_->text() + QStringLiteral("')");
}

QString frmBlocos::sqlUpdate(const QString &c) const
{
    return QStringLiteral("Update Grupos Set Descri = '") + txtDescri_->text() + u'\'' + QStringLiteral(" Where codgrupo = '") + c + u'\'';
}

QString frmBlocos::sqlDelete(const QString &c) const { return QStringLiteral("DELETE * FROM Grupos WHERE codgrupo = '") + c + u'\''; }

void frmBlocos::carregaCampos(const Recordset &rs) { txtDescri_->setText(rs[QStringLiteral("descri")].text()); }

void frmBlocos::validaCampos()
{
    if (txtDescri_->text().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O Campo Descrição é Obrigatório !"));
}

QStringList frmBlocos::linhaGrade(const Recordset &rs) const
{
    return {rs[QStringLiteral("codgrupo")].text(), rs[QStringLiteral("descri")].text(),
            rs[QStringLiteral("grupo")].toBool() ? QStringLiteral("Bloco") : QStringLiteral("Subgrupo")};
}

QStringList frmBlocos::titulosGrade() const { return {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo")}; }

void frmBlocos::imprime(const QString &)
{
    Recordset rs;
    Ampulheta ampulheta;
    ImprimeRelatorio(cn_, rs, QStringLiteral("SELECT codgrupo,descri FROM Grupos"),
                     {QStringLiteral("codgrupo"), QStringLiteral("descri")}, QStringLiteral("RBloc.rpt"),
                     QStringLiteral("Relação de Blocos"));
}

QWidget *frmBlocos::primeiroCampo() const { return txtDescri_; }

void frmBlocos::poeCodigo(const QString &codigo)
{
    // A code of two digits is shown as "01__"; the mask stays "####".
    mskCodigo_->setText(codigo);
}
