#pragma once
// One paper made of several reports, page after page (a unit's card and its
// vehicles): the later parts number their pages on from the ones before, and
// the page count is the whole's.
#include "reporting/imprime.h"

#include <vector>

// Lays a report out with its first page numbered `primeiraPagina`.
ReportDocument renderReport(const ReportTemplate &tpl, const ReportData &data, int primeiraPagina);
// MontaRelatorio for a part that comes after `primeiraPagina` - 1 pages.
std::shared_ptr<const ReportDocument> MontaRelatorioDesde(const QString &templateName, ReportData data, int primeiraPagina);
// The parts as one document: each page keeps its own fonts; the page size and
// title are the first part's.
std::shared_ptr<const ReportDocument> juntaRelatorios(const std::vector<std::shared_ptr<const ReportDocument>> &partes);
// Shows a document already built, as MostraRelatorio does.
void MostraDocumento(std::shared_ptr<const ReportDocument> doc);
