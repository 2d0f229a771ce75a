#pragma once
// The engine's print job: the one print that reads its data itself. Its
// template names the file and the statement (`source`), the form fills that
// table first and then runs the job step by step, each step answering whether
// it could be done:
//
//   PrintJob job;
//   if (!job.open("Conarec.rpt")) ...          // no template, or one that cannot be read
//   job.setFormula("Peri", "Período de ...");
//   if (!job.setWindowOptions(true, true)) ...
//   if (!job.outputToWindow("Condomínio a Receber por Entrada")) ...
//   if (!job.start()) ...                      // the bound data could not be read or laid out
//   job.close();
#include "reporting/renderer.h"
#include "reporting/template.h"

#include <QString>
#include <optional>

class PrintJob {
public:
    // Reads the template of the program directory.
    bool open(const QString &templateName);
    // Sets a formula as a quoted literal, as every print does.
    bool setFormula(const QString &name, const QString &value);
    // The buttons of the preview; the viewer always has both.
    bool setWindowOptions(bool printSetupButton, bool refreshButton);
    // The print goes to the preview under this title. False when no preview
    // is installed to take it.
    bool outputToWindow(const QString &title);
    // Reads the template's data from its file, lays the pages out and shows
    // them. False when the file or the statement fails, or nothing was opened.
    bool start();
    void close();

    bool isOpen() const { return tpl_.has_value(); }
    // Why the last step failed, for the log of the run.
    QString motivo() const { return motivo_; }

private:
    QString templateName_;
    std::optional<ReportTemplate> tpl_;
    ReportData data_;
    bool toWindow_ = false;
    QString motivo_;
};
