#pragma once
// The PDF road of writePdf: the laid-out pages written straight into a PDF by
// libharu, one text operator per text, the TrueType fonts embedded as subsets
// (WinAnsi encoding, so the text reads back). A thousand slips take a fraction
// of what QPainter on QPdfWriter takes, which positions every glyph apart.
//
// It declines (false, nothing written) what it cannot write as the preview
// shows it: a character outside WinAnsi, a font fontconfig does not give as a
// .ttf file, a text over 4,096 characters. writePdf then takes QPdfWriter.
#include "reporting/renderer.h"

#include <QFont>

bool escrevePdfDireto(const ReportDocument &doc, const QString &path);

// The QPdfWriter road alone: the pages painted as the printer gets them
// (writePdf takes it when escrevePdfDireto declines).
bool writePdfQt(const ReportDocument &doc, const QString &path, QString *error = nullptr);
// The font a template's FontSpec stands for, sized in hundredths of a millimetre.
QFont reportFont(const FontSpec &fonte);
