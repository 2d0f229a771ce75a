#include "registers/forms/frmMoradores2.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "registers/vinculos.h"
#include "ui_frmMoradores2.h"

frmMoradores2::frmMoradores2(QWidget *parent) : QDialog(parent)
{
    Ui::frmMoradores2 ui;
    ui.setupUi(this);
    const QString unidade = session.valorPesq.trimmed();
    GradeModel *grade = ui.tdbMoradores->modelo();
    grade->setTitulos({QStringLiteral("Nome"), QStringLiteral("Nascimento"), QStringLiteral("Vínculo")});
    Connection cn;
    cn.ConnectionTimeout = 100;
    cn.Open(session.conAtiva);
    Recordset ap = cn.Execute(QStringLiteral("SELECT nome FROM Aptos WHERE codigo = '") + unidade + u'\'');
    ui.lblApto->setText(QStringLiteral("Apartamento ") + unidade
                        + (ap.eof() ? QString() : QStringLiteral(" - ") + ap[QStringLiteral("nome")].text()));
    Recordset conta = cn.Execute(QStringLiteral("SELECT Count(Nome) As I FROM Moradores WHERE Codap = '") + unidade + u'\'');
    Q_UNUSED(conta);  // the in-memory table grows as the rows come
    for (Recordset rs = cn.Execute(QStringLiteral("SELECT * FROM Moradores WHERE CodAp = '") + unidade
                                   + QStringLiteral("' ORDER BY nome"));
         !rs.eof(); rs.moveNext())
        grade->adiciona({rs[QStringLiteral("nome")].text(), rs[QStringLiteral("nascto")].text(),
                         nomeVinculo(rs[QStringLiteral("vinculo")].text())});
    cn.Close();
    ui.tdbMoradores->ajustaColunas();
    connect(ui.cmdSair, &QPushButton::clicked, this, &QDialog::accept);
    aplicaTeclado(*this);
}
