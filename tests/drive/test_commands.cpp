// habdrive's commands on the kinds of control that today's forms do not hold
// yet (combo, tab strip, editable grid, list, check and option boxes), on a
// dialog made here. The scenario scripts beside this file drive the program.
#include "motorista.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {
struct Fim {
    int codigo;
};

struct Janela : QDialog {
    QComboBox *cbo = new QComboBox(this);
    QTabWidget *tab = new QTabWidget(this);
    QLineEdit *txtA = new QLineEdit, *txtB = new QLineEdit;
    QTableWidget *grd = new QTableWidget(2, 2, this);
    QListWidget *lst = new QListWidget(this);
    QCheckBox *chk = new QCheckBox(QStringLiteral("&Ativo"), this);
    QRadioButton *optA = new QRadioButton(QStringLiteral("A"), this), *optB = new QRadioButton(QStringLiteral("B"), this);
    int escolhas = 0;

    Janela()
    {
        setObjectName(QStringLiteral("frmTeste"));
        cbo->setObjectName(QStringLiteral("cboTipo"));
        cbo->addItems({QStringLiteral("Apartamento"), QStringLiteral("Casa"), QStringLiteral("Cobertura")});
        connect(cbo, &QComboBox::activated, this, [this] { ++escolhas; });
        tab->setObjectName(QStringLiteral("tabDados"));
        txtA->setObjectName(QStringLiteral("txtA"));
        txtB->setObjectName(QStringLiteral("txtB"));
        tab->addTab(txtA, QStringLiteral("&Um"));
        tab->addTab(txtB, QStringLiteral("&Dois"));
        grd->setObjectName(QStringLiteral("grdItens"));
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 2; ++c)
                grd->setItem(r, c, new QTableWidgetItem(QString(QChar(u'a' + r * 2 + c))));
        lst->setObjectName(QStringLiteral("lstNomes"));
        lst->addItems({QStringLiteral("Ana"), QStringLiteral("Bia"), QStringLiteral("Caio")});
        chk->setObjectName(QStringLiteral("chkAtivo"));
        optA->setObjectName(QStringLiteral("optA"));
        optB->setObjectName(QStringLiteral("optB"));
        optA->setChecked(true);
        auto *layout = new QVBoxLayout(this);
        for (QWidget *w : std::initializer_list<QWidget *>{cbo, tab, grd, lst, chk, optA, optB})
            layout->addWidget(w);
    }
};

// Runs the script inside the dialog, then to its end: the lines printed and the status.
int roda(Janela &janela, const QString &script, QStringList &linhas)
{
    QList<Comando> comandos;
    int linhaErro = 0;
    QString motivo;
    EXPECT_TRUE(leRoteiro(script, comandos, linhaErro, motivo)) << motivo.toStdString();
    Motorista motorista(comandos, QString());
    motorista.saida = [&](const QString &linha) { linhas << linha; };
    motorista.fim = [](int codigo) { throw Fim{codigo}; };
    try {
        motorista.abreDialogo(janela);
        motorista.executa(nullptr, false);
    } catch (const Fim &fim) {
        return fim.codigo;
    }
    return -1;
}
}

TEST(HabdriveCommands, ActOnEveryKindOfControlAsAPersonWould)
{
    Janela janela;
    QStringList linhas;
    const int codigo = roda(janela, QStringLiteral(R"(choose cboTipo Cob
show cboTipo
choose cboTipo Casa
tab tabDados 2
show txtA
type txtB "dois três"
key txtB Backspace
show txtB
cell grdItens 2 1 dez
grid grdItens
row lstNomes 2
grid lstNomes
click chkAtivo
show chkAtivo
click optB
show optA
show tabDados
close
)"),
                            linhas);
    EXPECT_EQ(codigo, 0);
    EXPECT_EQ(linhas, QStringList({
                          QStringLiteral("OPEN frmTeste"),
                          QStringLiteral("VALUE cboTipo|Cobertura|1|1"),
                          QStringLiteral("VALUE txtA||1|0"),
                          QStringLiteral("VALUE txtB|dois trê|1|1"),
                          QStringLiteral("ROW 1|a|b"),
                          QStringLiteral("ROW 2|dez|d"),
                          QStringLiteral("ROW 1|Ana"),
                          QStringLiteral("ROW 2|Bia"),
                          QStringLiteral("ROW 3|Caio"),
                          QStringLiteral("VALUE chkAtivo|1|1|1"),
                          QStringLiteral("VALUE optA|0|1|1"),
                          QStringLiteral("VALUE tabDados|Dois|1|1"),
                          QStringLiteral("CLOSE frmTeste"),
                          QStringLiteral("END"),
                      }));
    EXPECT_EQ(janela.cbo->currentText(), QStringLiteral("Casa"));
    EXPECT_EQ(janela.escolhas, 2);  // each choice as a person's pick
    EXPECT_EQ(janela.lst->currentRow(), 1);
    EXPECT_TRUE(janela.optB->isChecked());
}

TEST(HabdriveCommands, ACommandThatCannotRunEndsTheRun)
{
    const struct {
        const char *script;
        const char *erro;
    } casos[] = {
        {"type txtB x", "ERROR line 1: txtB está oculto"},
        {"choose cboTipo Sobrado", "ERROR line 1: cboTipo não tem o item \"Sobrado\""},
        {"tab tabDados 3", "ERROR line 1: tabDados tem 2 aba(s)"},
        {"show txtC", "ERROR line 1: não há o controle txtC em frmTeste"},
    };
    for (const auto &caso : casos) {
        Janela janela;
        QStringList linhas;
        EXPECT_EQ(roda(janela, QString::fromUtf8(caso.script), linhas), 2) << caso.script;
        EXPECT_EQ(linhas.value(1), QString::fromUtf8(caso.erro)) << caso.script;
    }
}

TEST(HabdriveScript, ReadsQuotedArgumentsAndRefusesWhatIsNotWellWritten)
{
    QList<Comando> comandos;
    int linha = 0;
    QString motivo;
    ASSERT_TRUE(leRoteiro(QStringLiteral("# a comment\r\n\n  type txtA \"a b\"\r\n"
                                         "type txtA \"c:\\\\dir \\\"x\\\"\" \n"
                                         "key txtA F12\ncell grd 2 3 \"\"\n"),
                          comandos, linha, motivo))
        << motivo.toStdString();
    ASSERT_EQ(comandos.size(), 4);
    EXPECT_EQ(comandos[0].linha, 3);
    EXPECT_EQ(comandos[0].args, QStringList({QStringLiteral("txtA"), QStringLiteral("a b")}));
    EXPECT_EQ(comandos[1].args[1], QStringLiteral("c:\\dir \"x\""));
    EXPECT_EQ(teclaPorNome(comandos[2].args[1]), int(Qt::Key_F12));
    EXPECT_EQ(comandos[3].args, QStringList({QStringLiteral("grd"), QStringLiteral("2"), QStringLiteral("3"), QString()}));

    const struct {
        const char *script;
        const char *motivo;
    } erros[] = {
        {"login a \"b", "aspas sem fim"},
        {"login a \"b\"c", "falta um espaço depois das aspas"},
        {"press cmdOk", "comando desconhecido: press"},
        {"close now", "close pede 0 argumento(s), há 1"},
        {"toolbar 15", "o botão da barra vai de 1 a 14"},
        {"row grd 0", "o número começa em 1"},
        {"key txtA Home", "tecla desconhecida: Home"},
    };
    for (const auto &e : erros) {
        motivo.clear();
        EXPECT_FALSE(leRoteiro(QStringLiteral("wait\n") + QString::fromUtf8(e.script), comandos, linha, motivo)) << e.script;
        EXPECT_EQ(linha, 2) << e.script;
        EXPECT_EQ(motivo, QString::fromUtf8(e.motivo)) << e.script;
    }
}
