// The automatic run started from frmParametro: the same rows as habtool emite
// on the same file, and a window that keeps painting with its bar moving.
#include "billing/forms/frmParametro.h"
#include "condominio.h"
#include "support/scriptedprompter.h"

#include <QFile>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// What the bar shows at each paint of the run.
class Pinturas : public QObject {
public:
    std::vector<int> valores;
    bool eventFilter(QObject *o, QEvent *e) override
    {
        if (e->type() == QEvent::Paint)
            valores.push_back(static_cast<QProgressBar *>(o)->value());
        return false;
    }
};

} // namespace

TEST(FrmParametro, AutomaticRunWritesWhatHabtoolWritesAndKeepsPainting)
{
    Condominio c;
    constexpr int kUnidades = 1500;
    for (int i = 1; i <= kUnidades; ++i)
        c.apto(i, QStringLiteral("Morador %1").arg(kUnidades - i), 300 + i % 7, i % 3 ? 25 : 0, 12.5, i % 31 + 1,
               i % 10 == 0 ? QStringLiteral("2") : QStringLiteral("A"));
    ParametrosEmissao p = c.mes();
    p.fordem = QLatin1Char('A');
    p.fevnt[0] = QStringLiteral("030");
    p.fvlev[0] = -10;
    p.fcpev[0] = QStringLiteral("Pontualidade");
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    c.usuario(1, QStringLiteral("Ana"), true, true, true);
    session.usuario = QStringLiteral("Ana");
    c.con.Close();
    const QString arquivo = c.dir.file(QStringLiteral("Con001.mdb"));
    const QString copia = c.dir.file(QStringLiteral("Copia.mdb"));
    ASSERT_TRUE(QFile::copy(arquivo, copia));

    QProcess habtool;
    habtool.start(builtProgramDir() + QStringLiteral("habtool"), {QStringLiteral("emite"), copia});
    ASSERT_TRUE(habtool.waitForFinished(300000));
    ASSERT_EQ(habtool.exitCode(), 0) << habtool.readAllStandardError().toStdString();

    Pinturas pinturas;
    {
        ScriptedPrompter prompt;
        prompt.answer(vbYes, QStringLiteral("Foram selecionados"));
        frmParametro form;
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        auto *barra = form.findChild<QProgressBar *>(QStringLiteral("prgEmissao"));
        barra->installEventFilter(&pinturas);
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("cmdInicia")), Qt::LeftButton);
        ASSERT_EQ(prompt.calls.size(), 2u);
        EXPECT_EQ(prompt.calls[1].text, QStringLiteral("Emissão automática finalizada: 1.500 recibo(s) emitido(s)."));
        EXPECT_EQ(form.findChild<QLineEdit *>(QStringLiteral("mskNrRecibo"))->text(), QStringLiteral("001600"));
    }

    // The bar was painted during the run, between its ends, and never went back.
    long durante = 0;
    for (size_t i = 0; i < pinturas.valores.size(); ++i) {
        durante += pinturas.valores[i] > 0 && pinturas.valores[i] < kUnidades;
        if (i > 0) {
            EXPECT_GE(pinturas.valores[i], pinturas.valores[i - 1]);
        }
    }
    EXPECT_GE(durante, 2);
    ASSERT_FALSE(pinturas.valores.empty());
    EXPECT_EQ(pinturas.valores.back(), kUnidades);

    for (const char *sql : {"SELECT * FROM Recibos ORDER BY codigo", "SELECT * FROM Aptos ORDER BY codigo",
                            "SELECT fnreci FROM Parametros"}) {
        auto linhas = [sql](const QString &arquivo) { return leLinhas(kConnectionPrefix + arquivo + u';', QLatin1String(sql)); };
        const QString daForma = linhas(arquivo);
        EXPECT_EQ(daForma, linhas(copia)) << sql;
        EXPECT_FALSE(daForma.isEmpty());
    }
}
