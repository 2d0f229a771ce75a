#pragma once
// Report templates: the declarative text files NAME.rpt of the program
// directory (format in docs/report-templates.md). A template is parsed once
// into the structures below; the renderer lays them out over a table of text
// columns. Every length is in millimetres.
#include <QPageSize>
#include <QString>
#include <QStringList>
#include <stdexcept>
#include <vector>

// A template that cannot be read. The message names the file and the line.
class TemplateError : public std::runtime_error {
public:
    TemplateError(const QString &file, int line, const QString &message);
    QString message() const { return message_; }

private:
    QString message_;
};

// One piece of an item's text: literal text or a reference in braces.
struct TextPart {
    enum Kind { Literal, Field, Formula, Page, Pages, Title, Date, Sum, Count };
    Kind kind = Literal;
    QString name;     // the literal text, or the field/formula name (summed field for Sum)
    QString picture;  // format picture, "trim", or empty
};

// A print-when condition: the left reference alone means "not empty".
struct Condition {
    enum Op { Always, NotEmpty, Equal, NotEqual };
    Op op = Always;
    TextPart left;
    TextPart right;   // a literal or a reference
};

struct FontSpec {
    QString family;
    double size = 9;  // points
    bool bold = false;
    bool italic = false;
    bool operator==(const FontSpec &) const = default;
};

struct Item {
    enum Kind { Text, Line, Rect, Barcode };
    Kind kind = Text;
    double x = 0, y = 0, w = 0, h = 0;  // Line: from (x, y) to (w, h)
    std::vector<TextPart> parts;        // Text and Barcode
    FontSpec font;
    int align = 0;                      // Qt::Alignment flags
    bool box = false;                   // frame around a text
    bool clip = true;
    bool grow = false;                  // wraps and pushes the band's height
    double pen = 0.25;                  // line width of lines, rectangles and boxes
    bool dash = false;
    QString fill;                       // colour name for a filled rectangle
    Condition when;
    int line = 0;                       // line of the template, for messages
};

enum class BandKind { ReportHeader, PageHeader, GroupHeader, Detail, GroupFooter, PageFooter, ReportFooter };

struct Band {
    BandKind kind = BandKind::Detail;
    int group = -1;                     // group headers and footers: index in ReportTemplate::groups
    double height = 0;
    bool newPage = false;               // starts a page of its own (a group header: each group on new pages)
    Condition when;
    std::vector<Item> items;
    int line = 0;
};

// Labels: the detail band is one label, placed in a grid of cells.
struct LabelLayout {
    int columns = 0;                    // 0: not a label template
    double width = 0, height = 0;
    double hgap = 0, vgap = 0;
    bool across = true;                 // across then down; false: down then across
};

struct ReportTemplate {
    QString fileName;
    QPageSize pageSize{QPageSize::A4};
    bool landscape = false;
    double marginLeft = 10, marginTop = 10, marginRight = 10, marginBottom = 10;
    FontSpec font{QStringLiteral("DejaVu Sans"), 9, false, false};
    LabelLayout labels;
    QStringList groups;                 // group fields, outermost first
    std::vector<Band> bands;
    // A template bound to its own data: the statement it reads from a file of
    // the program directory (`source`). Empty for a template handed its table.
    QString sourceFile, sourceSql;

    // The band of this kind (and group), or nullptr.
    const Band *band(BandKind kind, int group = -1) const;
    // Page size in millimetres, orientation applied.
    double pageWidth() const;
    double pageHeight() const;
};

// Parses the text of a template. fileName only names it in messages.
ReportTemplate parseTemplate(const QString &text, const QString &fileName);
// Reads and parses a file; a missing or unreadable file is a TemplateError.
ReportTemplate loadTemplate(const QString &path);
