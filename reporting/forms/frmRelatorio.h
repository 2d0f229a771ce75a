#pragma once
// frmRelatorio: the report preview, an MDI child whose caption is the
// report's title. Zoom, page navigation, print through the platform's print
// dialog, and "Salvar PDF…". A second print replaces what it shows.
#include "reporting/renderer.h"

#include <QWidget>
#include <memory>

class QLabel;
class QMdiArea;
class QPrinter;
class QPrintPreviewWidget;

class frmRelatorio : public QWidget {
    Q_OBJECT
public:
    explicit frmRelatorio(QWidget *parent = nullptr);
    ~frmRelatorio() override;

    // Shows doc in place of what the preview held; the caption becomes its title.
    void setDocument(std::shared_ptr<const ReportDocument> doc);
    std::shared_ptr<const ReportDocument> document() const { return doc_; }

    int currentPage() const;   // from 1
    int pageCount() const;
    void setCurrentPage(int page);
    double zoom() const;

    bool savePdf(const QString &path);

public slots:
    void zoomIn();
    void zoomOut();
    void fitWidth();
    void firstPage();
    void previousPage();
    void nextPage();
    void lastPage();
    void imprimir();
    void salvarPdf();

private:
    void paintRequested(QPrinter *printer);
    void updatePageLabel();

    std::shared_ptr<const ReportDocument> doc_;
    QPrintPreviewWidget *preview_ = nullptr;
    std::unique_ptr<QPrinter> previewPrinter_;
    QLabel *lblPagina_ = nullptr;
    QLabel *lblAvisos_ = nullptr;
};

// Shows doc in the area's frmRelatorio, making one when there is none, and
// brings it to the front.
frmRelatorio *showReport(QMdiArea *area, std::shared_ptr<const ReportDocument> doc);
// Makes every print of the printing routine appear in this area.
void installReportViewer(QMdiArea *area);
