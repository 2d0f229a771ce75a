#include "reporting/forms/frmRelatorio.h"

#include "core/prompter.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolButton>
#include <QVBoxLayout>

frmRelatorio::frmRelatorio(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmRelatorio"));
    setAttribute(Qt::WA_DeleteOnClose);

    previewPrinter_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    previewPrinter_->setFullPage(true);
    preview_ = new QPrintPreviewWidget(previewPrinter_.get(), this);
    preview_->setObjectName(QStringLiteral("pvwRelatorio"));
    connect(preview_, &QPrintPreviewWidget::paintRequested, this, &frmRelatorio::paintRequested);
    connect(preview_, &QPrintPreviewWidget::previewChanged, this, &frmRelatorio::updatePageLabel);

    auto *bar = new QHBoxLayout;
    auto button = [&](const char *name, const QString &text, const QString &tip, void (frmRelatorio::*slot)()) {
        auto *b = new QToolButton(this);
        b->setObjectName(QString::fromLatin1(name));
        b->setText(text);
        b->setToolTip(tip);
        connect(b, &QToolButton::clicked, this, slot);
        bar->addWidget(b);
        return b;
    };
    button("cmdPrimeira", QStringLiteral("|<"), QStringLiteral("Primeira página"), &frmRelatorio::firstPage);
    button("cmdAnterior", QStringLiteral("<"), QStringLiteral("Página anterior"), &frmRelatorio::previousPage);
    lblPagina_ = new QLabel(this);
    lblPagina_->setObjectName(QStringLiteral("lblPagina"));
    bar->addWidget(lblPagina_);
    button("cmdProxima", QStringLiteral(">"), QStringLiteral("Próxima página"), &frmRelatorio::nextPage);
    button("cmdUltima", QStringLiteral(">|"), QStringLiteral("Última página"), &frmRelatorio::lastPage);
    bar->addSpacing(12);
    button("cmdZoomMenos", QStringLiteral("-"), QStringLiteral("Diminuir"), &frmRelatorio::zoomOut);
    button("cmdZoomMais", QStringLiteral("+"), QStringLiteral("Aumentar"), &frmRelatorio::zoomIn);
    button("cmdLargura", QStringLiteral("Largura"), QStringLiteral("Ajustar à largura"), &frmRelatorio::fitWidth);
    bar->addSpacing(12);
    button("cmdImprimir", QStringLiteral("&Imprimir..."), QStringLiteral("Imprimir"), &frmRelatorio::imprimir);
    button("cmdSalvarPdf", QStringLiteral("Salvar PDF…"), QStringLiteral("Salvar como PDF"), &frmRelatorio::salvarPdf);
    bar->addStretch();

    lblAvisos_ = new QLabel(this);
    lblAvisos_->setObjectName(QStringLiteral("lblAvisos"));
    lblAvisos_->setWordWrap(true);
    lblAvisos_->hide();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(bar);
    layout->addWidget(preview_, 1);
    layout->addWidget(lblAvisos_);
    resize(800, 600);
}

frmRelatorio::~frmRelatorio()
{
    delete preview_;   // before the printer it paints on
}

void frmRelatorio::setDocument(std::shared_ptr<const ReportDocument> doc)
{
    doc_ = std::move(doc);
    setWindowTitle(doc_ ? doc_->title : QString());
    if (doc_) {
        previewPrinter_->setPageLayout(QPageLayout(doc_->pageSize, doc_->landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                                   QMarginsF(0, 0, 0, 0)));
        previewPrinter_->setDocName(doc_->title);
    }
    const QStringList notes = doc_ ? doc_->log : QStringList();
    lblAvisos_->setText(QStringLiteral("Avisos: ") + notes.join(QStringLiteral("; ")));
    lblAvisos_->setVisible(!notes.isEmpty());
    preview_->updatePreview();
    preview_->setCurrentPage(1);
    updatePageLabel();
}

void frmRelatorio::paintRequested(QPrinter *printer)
{
    if (doc_)
        printReport(*doc_, *printer);
}

int frmRelatorio::currentPage() const
{
    return preview_->currentPage();
}

int frmRelatorio::pageCount() const
{
    return preview_->pageCount();
}

void frmRelatorio::setCurrentPage(int page)
{
    preview_->setCurrentPage(page);
    updatePageLabel();
}

double frmRelatorio::zoom() const
{
    return preview_->zoomFactor();
}

void frmRelatorio::updatePageLabel()
{
    lblPagina_->setText(QStringLiteral("Página %1 de %2").arg(preview_->currentPage()).arg(preview_->pageCount()));
}

void frmRelatorio::zoomIn()
{
    preview_->zoomIn(1.25);
}

void frmRelatorio::zoomOut()
{
    preview_->zoomOut(1.25);
}

void frmRelatorio::fitWidth()
{
    preview_->fitToWidth();
}

void frmRelatorio::firstPage()
{
    setCurrentPage(1);
}

void frmRelatorio::previousPage()
{
    setCurrentPage(std::max(1, currentPage() - 1));
}

void frmRelatorio::nextPage()
{
    setCurrentPage(std::min(pageCount(), currentPage() + 1));
}

void frmRelatorio::lastPage()
{
    setCurrentPage(pageCount());
}

void frmRelatorio::imprimir()
{
    if (!doc_)
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(doc_->title);
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral("Imprimir"));
    dialog.setMinMax(1, doc_->pageCount());
    if (showModal(dialog) != QDialog::Accepted)
        return;
    if (!printReport(*doc_, printer))
        MsgBox(QStringLiteral("Não foi possível imprimir o relatório."), vbOKOnly + vbExclamation, QStringLiteral("Atenção..."));
}

bool frmRelatorio::savePdf(const QString &path)
{
    if (!doc_)
        return false;
    QString error;
    if (!writePdf(*doc_, path, &error)) {
        MsgBox(error, vbOKOnly + vbExclamation, QStringLiteral("Atenção..."));
        return false;
    }
    return true;
}

void frmRelatorio::salvarPdf()
{
    if (!doc_)
        return;
    QString name = doc_->title.isEmpty() ? QStringLiteral("Relatorio") : doc_->title;
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    const QString path = escolheArquivo(this, EscolhaArquivo::Salvar, QStringLiteral("Salvar PDF"),
                                        name + QStringLiteral(".pdf"), QStringLiteral("Documentos PDF (*.pdf)"));
    if (!path.isEmpty())
        savePdf(path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive) ? path : path + QStringLiteral(".pdf"));
}

frmRelatorio *showReport(QMdiArea *area, std::shared_ptr<const ReportDocument> doc)
{
    frmRelatorio *form = nullptr;
    for (QMdiSubWindow *w : area->subWindowList())
        if (auto *f = qobject_cast<frmRelatorio *>(w->widget())) {
            form = f;
            break;
        }
    QMdiSubWindow *sub = nullptr;
    if (form) {
        sub = qobject_cast<QMdiSubWindow *>(form->parentWidget());
    } else {
        form = new frmRelatorio;
        sub = area->addSubWindow(form);
        sub->setAttribute(Qt::WA_DeleteOnClose);
    }
    form->setDocument(std::move(doc));
    // Maximised within the work area, so that its frame and close box are in
    // sight, and titled with the report's title rather than the form's.
    sub->setWindowTitle(form->windowTitle());
    sub->showMaximized();
    area->setActiveSubWindow(sub);
    sub->raise();
    return form;
}

void installReportViewer(QMdiArea *area)
{
    QPointer<QMdiArea> guard(area);
    setReportViewer([guard](std::shared_ptr<const ReportDocument> doc) {
        if (guard)
            showReport(guard, std::move(doc));
    });
}
