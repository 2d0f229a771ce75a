#include "reporting/forms/frmRelatorio.h"

#include "core/session.h"
#include "reporthelpers.h"
#include "reporting/imprime.h"

#include <QFile>
#include <QGraphicsView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

std::shared_ptr<const ReportDocument> listing(const QString &title, int rows)
{
    const ReportTemplate t = parseTemplate(QStringLiteral("band pageheader height=8\n text 0 0 100 6 \"{title} {page}/{pages}\"\nend\n"
                                                          "band detail height=6\n text 0 0 100 6 \"Linha {n} {falta}\"\nend\n"),
                                           QStringLiteral("T.rpt"));
    ReportData d;
    d.columns = {QStringLiteral("n")};
    for (int i = 1; i <= rows; ++i)
        d.rows.push_back({QString::number(i)});
    d.title = title;
    return std::make_shared<const ReportDocument>(renderReport(t, d));
}

} // namespace

TEST(FrmRelatorio, ShowsInTheMdiAreaNavigatesZoomsAndASecondPrintReplacesTheFirst)
{
    QMdiArea area;
    area.resize(900, 700);
    area.show();
    area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    installReportViewer(&area);
    auto *cadastro = new QLineEdit;
    cadastro->setWindowTitle(QStringLiteral("Cadastro de Blocos"));
    QMdiSubWindow *subCadastro = area.addSubWindow(cadastro);
    subCadastro->show();
    cadastro->setFocus();

    // The preview opens maximised within the area, in front, with the report's title.
    auto first = listing(QStringLiteral("Relação de Blocos"), 100);   // 3 pages
    ASSERT_EQ(first->pageCount(), 3);
    frmRelatorio *form = showReport(&area, first);
    ASSERT_TRUE(form);
    auto *sub = qobject_cast<QMdiSubWindow *>(form->parentWidget());
    ASSERT_TRUE(sub);
    EXPECT_EQ(form->objectName(), QStringLiteral("frmRelatorio"));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Relação de Blocos"));
    EXPECT_EQ(sub->windowTitle(), QStringLiteral("Relação de Blocos"));
    EXPECT_TRUE(sub->isMaximized());
    EXPECT_TRUE(area.viewport()->rect().contains(sub->geometry()));
    EXPECT_EQ(area.activeSubWindow(), sub);
    // A click on its pages brings it back to the front.
    area.setActiveSubWindow(subCadastro);
    QWidget *pages = form->findChild<QGraphicsView *>()->viewport();
    QTest::mouseClick(pages, Qt::LeftButton, {}, pages->rect().center());
    EXPECT_EQ(area.activeSubWindow(), sub);
    delete subCadastro;
    EXPECT_EQ(area.subWindowList().size(), 1);
    EXPECT_EQ(form->pageCount(), 3);
    EXPECT_EQ(form->currentPage(), 1);

    form->findChild<QToolButton *>(QStringLiteral("cmdUltima"))->click();
    EXPECT_EQ(form->currentPage(), 3);
    form->findChild<QToolButton *>(QStringLiteral("cmdAnterior"))->click();
    EXPECT_EQ(form->currentPage(), 2);
    form->findChild<QToolButton *>(QStringLiteral("cmdProxima"))->click();
    form->findChild<QToolButton *>(QStringLiteral("cmdProxima"))->click();
    EXPECT_EQ(form->currentPage(), 3);
    EXPECT_EQ(form->findChild<QLabel *>(QStringLiteral("lblPagina"))->text(), QStringLiteral("Página 3 de 3"));
    form->findChild<QToolButton *>(QStringLiteral("cmdPrimeira"))->click();
    EXPECT_EQ(form->currentPage(), 1);

    const double before = form->zoom();
    form->findChild<QToolButton *>(QStringLiteral("cmdZoomMais"))->click();
    EXPECT_GT(form->zoom(), before);
    form->findChild<QToolButton *>(QStringLiteral("cmdZoomMenos"))->click();
    form->findChild<QToolButton *>(QStringLiteral("cmdZoomMenos"))->click();
    EXPECT_LT(form->zoom(), before);

    // The notes of the run show under the pages.
    const QLabel *avisos = form->findChild<QLabel *>(QStringLiteral("lblAvisos"));
    EXPECT_TRUE(avisos->text().contains(QStringLiteral("Campo inexistente nos dados: falta")));

    // A second print through the printing routine: same window, new contents and caption.
    QTemporaryDir programDir;
    {
        QFile f(programDir.filePath(QStringLiteral("U.rpt")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("band detail height=6\n text 0 0 100 6 \"{n} {@uNempat}\"\nend\n");
    }
    session.sysPath = programDir.path() + QLatin1Char('/');
    session.nomeEmp = QStringLiteral("Solar");
    ReportData d;
    d.columns = {QStringLiteral("n")};
    d.rows = {{QStringLiteral("único")}};
    d.title = QStringLiteral("Tipos de Apartamentos");
    MostraRelatorio(QStringLiteral("U.rpt"), d);
    const auto second = lastReport();
    EXPECT_EQ(area.subWindowList().size(), 1);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Tipos de Apartamentos"));
    EXPECT_EQ(form->pageCount(), 1);
    EXPECT_EQ(form->document(), second);
    EXPECT_FALSE(avisos->isVisibleTo(form));

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("saida.pdf"));
    ASSERT_TRUE(form->savePdf(pdf));
    EXPECT_TRUE(pdfFileText(pdf, false).contains(QStringLiteral("único Solar")));

    setReportViewer({});
}
