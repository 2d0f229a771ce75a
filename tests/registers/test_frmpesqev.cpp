// The pick list of events: the empty table, a search on each kind of column,
// the choice and the cancel.
#include "registerssupport.h"
#include "support/scriptedprompter.h"

#include "core/session.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmPesqEv.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

TEST(PesqEv, EmptyTableSearchChooseAndCancel)
{
    RegistersDir dir;
    ScriptedPrompter p;
    {
        frmPesqEv vazio;
        EXPECT_EQ(showModal(vazio), int(QDialog::Rejected));
        ASSERT_EQ(p.calls.size(), 1u);
        EXPECT_EQ(p.calls[0].text, QStringLiteral("Atenção, não existem prestações cadastradas nesta condição !"));
        EXPECT_TRUE(session.cancelaGrava);
        session.cancelaGrava = false;
    }
    dir.execAtivo(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('001',\"Taxa\",'H',False,False,'0')"));
    dir.execAtivo(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('007',\"Água\",'T',True,True,'3.5')"));
    dir.execAtivo(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('030',\"Desconto\",'D',False,False,'0')"));
    const struct {
        const char *coluna, *texto, *codigo;
    } casos[] = {{"Código", "7", "007"},   {"Evento", "des", "030"}, {"Tipo", "Terc", "007"},
                 {"IR", "S", "007"},       {"Ref", "N", "001"},      {"Valor", "3,50", "007"},
                 {"Evento", "Nada", "001"}};  // no match: the first row stays
    for (const auto &c : casos) {
        SCOPED_TRACE(c.coluna);
        frmPesqEv d;
        d.findChild<QComboBox *>(QStringLiteral("cmbColuna"))->setCurrentText(QString::fromUtf8(c.coluna));
        d.cmbColuna_LostFocus();
        d.findChild<QLineEdit *>(QStringLiteral("txtPesq"))->setText(QString::fromUtf8(c.texto));
        d.cmdPesquisar_Click();
        d.cmdOk_Click();
        EXPECT_EQ(session.valorPesq, QString::fromLatin1(c.codigo));
        EXPECT_FALSE(session.cancelaGrava);
    }
    frmPesqEv d;
    d.findChild<QPushButton *>(QStringLiteral("cmdCancela"))->click();
    EXPECT_TRUE(session.cancelaGrava);
    EXPECT_EQ(p.calls.size(), 1u);
}
