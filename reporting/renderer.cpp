#include "reporting/renderer.h"

#include "reporting/junta.h"

#include "core/conversions.h"
#include "reporting/barcode.h"
#include "reporting/pdfdireto.h"

#include <QDate>
#include <QFile>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QSet>
#include <limits>
#include <optional>

void ReportData::setFormula(const QString &name, const QString &value)
{
    formulas.insert(name, QLatin1Char('"') + value + QLatin1Char('"'));
}

double ReportDocument::pageWidth() const
{
    const QSizeF s = pageSize.size(QPageSize::Millimeter);
    return landscape ? s.height() : s.width();
}

double ReportDocument::pageHeight() const
{
    const QSizeF s = pageSize.size(QPageSize::Millimeter);
    return landscape ? s.width() : s.height();
}

namespace {

// Text is measured and painted in hundredths of a millimetre, so that a font
// has the same size on every device.
constexpr double kUnits = 100.0;

QFont makeFont(const FontSpec &wanted)
{
    QFont f(wanted.family);
    f.setPixelSize(std::max(1, qRound(wanted.size * 25.4 / 72.0 * kUnits)));
    f.setBold(wanted.bold);
    f.setItalic(wanted.italic);
    f.setHintingPreference(QFont::PreferNoHinting);
    // Any letter spacing switches ligatures off, so that "fi" stays two letters
    // when the PDF is searched or copied. A fiftieth of a hundredth of a mm.
    f.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
    return f;
}

// Amounts arrive as the data store's plain text ("1234,5"); a point before a
// comma is a thousands separator.
// Nothing when the currency cannot hold the amount.
std::optional<Money> amountOf(const QString &text)
{
    QString t = text.trimmed();
    if (t.contains(u','))
        t.remove(u'.');
    try {
        return Money::fromDouble(val(VirgulaPonto(t)));
    } catch (const std::overflow_error &) {
        return std::nullopt;
    }
}

bool isNumberPicture(const QString &picture)
{
    return picture.contains(u'#') || picture.contains(u'0');
}

bool isDatePicture(const QString &picture)
{
    return picture.contains(u'd') || picture.contains(u'm') || picture.contains(u'y');
}

struct Totals {
    long count = 0;
    QHash<QString, Money> sums;   // by lower-case field name
};

struct Prepared {
    const Item *item;
    QString text;
    double height;
};

class Layout {
public:
    Layout(const ReportTemplate &t, const ReportData &d, int primeiraPagina = 1)
        : t_(t), d_(d), primeiraPagina_(primeiraPagina) {}
    ReportDocument run();

private:
    void note(const QString &text);
    QString cell(const QString &field);
    QString resolve(const TextPart &part, int group);
    QString resolveText(const std::vector<TextPart> &parts, int group);
    bool holds(const Condition &c, int group);
    int fontIndex(const FontSpec &wanted);
    std::vector<Prepared> prepare(const Band &band, double &height);
    void put(const std::vector<Prepared> &items, double left, double top);
    void place(const Band *band, double keepWith = 0);
    void startPage();
    void closePage();
    void addToTotals(const QStringList &row);
    void runLabels();

    const ReportTemplate &t_;
    const ReportData &d_;
    int primeiraPagina_ = 1;  // the number the first page prints
    ReportDocument doc_;
    QHash<QString, int> columns_;       // lower-case name -> index
    QHash<QString, QString> formulas_;  // lower-case name -> value
    QSet<QString> noted_;
    // The last wrapped text measured: a band that moves to the next page is
    // prepared again, and a long text is not measured twice.
    struct Measure {
        int font = -1;
        double width = 0;
        QString text;
        double height = 0;
    } measured_;
    QStringList sumFields_;             // lower-case
    std::vector<int> sumColumns_;
    std::vector<QFont> fonts_;
    const QStringList *row_ = nullptr;
    int page_ = -1;
    double y_ = 0;
    double bodyBottom_ = 0;
    bool pageHasBody_ = false;
    int currentGroup_ = -1;             // group of the band being laid out
    std::vector<Totals> groupTotals_;
    Totals reportTotals_;
};

void Layout::note(const QString &text)
{
    if (!noted_.contains(text)) {
        noted_.insert(text);
        doc_.log << text;
    }
}

QString Layout::cell(const QString &field)
{
    const auto it = columns_.constFind(field.toLower());
    if (it == columns_.constEnd()) {
        note(QStringLiteral("Campo inexistente nos dados: %1").arg(field));
        return QString();
    }
    if (!row_ || *it >= row_->size())
        return QString();
    return row_->at(*it);
}

QString Layout::resolve(const TextPart &part, int group)
{
    const Totals &totals = group >= 0 ? groupTotals_[size_t(group)] : reportTotals_;
    QString value;
    switch (part.kind) {
    case TextPart::Literal:
        return part.name;
    case TextPart::Field:
        value = cell(part.name);
        break;
    case TextPart::Formula: {
        // A column named "@Name" gives the formula a value of each row.
        if (const auto col = columns_.constFind(u'@' + part.name.toLower()); col != columns_.constEnd()) {
            value = row_ && *col < row_->size() ? row_->at(*col) : QString();
            break;
        }
        const auto it = formulas_.constFind(part.name.toLower());
        if (it == formulas_.constEnd())
            note(QStringLiteral("Fórmula sem valor: %1").arg(part.name));
        else
            value = *it;
        break;
    }
    case TextPart::Page:
        value = QString::number(page_ + primeiraPagina_);
        break;
    case TextPart::Pages:
        value = QString(QChar(kPageCountMark));
        break;
    case TextPart::Title:
        value = d_.title;
        break;
    case TextPart::Date:
        value = formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy"));
        break;
    case TextPart::Count:
        value = QString::number(totals.count);
        break;
    case TextPart::Sum: {
        const Money sum = totals.sums.value(part.name.toLower());
        if (isNumberPicture(part.picture))
            return formatMoney(sum, part.picture);
        value = moneyText(sum);
        break;
    }
    }
    return part.picture.isEmpty() ? value : formatValue(value, part.picture);
}

QString Layout::resolveText(const std::vector<TextPart> &parts, int group)
{
    QString text;
    for (const TextPart &p : parts)
        text += resolve(p, group);
    return text;
}

bool Layout::holds(const Condition &c, int group)
{
    switch (c.op) {
    case Condition::Always:
        return true;
    case Condition::NotEmpty:
        return !resolve(c.left, group).trimmed().isEmpty();
    case Condition::Equal:
        return resolve(c.left, group) == resolve(c.right, group);
    case Condition::NotEqual:
        return resolve(c.left, group) != resolve(c.right, group);
    }
    return true;
}

int Layout::fontIndex(const FontSpec &wanted)
{
    for (size_t i = 0; i < doc_.fonts.size(); ++i)
        if (doc_.fonts[i] == wanted)
            return int(i);
    doc_.fonts.push_back(wanted);
    fonts_.push_back(makeFont(wanted));
    return int(doc_.fonts.size() - 1);
}

// Resolves the band's items and its height: a growing text wraps, and the band
// grows by as much as that text needs beyond its box.
std::vector<Prepared> Layout::prepare(const Band &band, double &height)
{
    std::vector<Prepared> out;
    out.reserve(band.items.size());
    height = band.height;
    currentGroup_ = band.group;
    for (const Item &it : band.items) {
        if (!holds(it.when, band.group))
            continue;
        Prepared p{&it, QString(), it.h};
        if (it.kind == Item::Text || it.kind == Item::Barcode)
            p.text = resolveText(it.parts, band.group);
        if (it.kind == Item::Text && it.grow) {
            const int font = fontIndex(it.font);
            if (measured_.font != font || measured_.width != it.w || measured_.text != p.text) {
                const QFontMetricsF fm(fonts_[size_t(font)]);
                const QRectF need = fm.boundingRect(QRectF(0, 0, it.w * kUnits, 1e7), Qt::TextWordWrap | Qt::AlignLeft, p.text);
                measured_ = {font, it.w, p.text, need.height() / kUnits};
            }
            p.height = std::max(it.h, measured_.height);
            height = std::max(height, band.height + (p.height - it.h));
        }
        out.push_back(std::move(p));
    }
    return out;
}

void Layout::put(const std::vector<Prepared> &items, double left, double top)
{
    ReportPage &page = doc_.pages.back();
    for (const Prepared &p : items) {
        const Item &it = *p.item;
        DrawOp op;
        op.pen = it.pen;
        op.dash = it.dash;
        switch (it.kind) {
        case Item::Text: {
            op.kind = DrawOp::Text;
            op.rect = QRectF(left + it.x, top + it.y, it.w, p.height);
            op.text = p.text;
            op.font = fontIndex(it.font);
            int flags = it.align;
            if (!(flags & Qt::AlignHorizontal_Mask))
                flags |= Qt::AlignLeft;
            if (!(flags & Qt::AlignVertical_Mask))
                flags |= it.grow ? Qt::AlignTop : Qt::AlignVCenter;
            if (it.grow)
                flags |= Qt::TextWordWrap;
            if (!it.clip)
                flags |= Qt::TextDontClip;
            op.flags = flags;
            op.box = it.box;
            if (op.text.isEmpty() && !op.box)
                continue;
            break;
        }
        case Item::Line:
            op.kind = DrawOp::Line;
            op.rect = QRectF(QPointF(left + it.x, top + it.y), QPointF(left + it.w, top + it.h));
            break;
        case Item::Rect:
            op.kind = DrawOp::Rect;
            op.rect = QRectF(left + it.x, top + it.y, it.w, it.h);
            op.fill = it.fill;
            break;
        case Item::Barcode: {
            op.kind = DrawOp::Bars;
            op.rect = QRectF(left + it.x, top + it.y, it.w, it.h);
            if (p.text.trimmed().isEmpty())
                continue;
            BarcodeBars bars = interleaved2of5(p.text.trimmed(), op.rect);
            if (!bars.error.isEmpty()) {
                note(QStringLiteral("Código de barras não impresso (linha %1 do modelo): %2").arg(it.line).arg(bars.error));
                continue;
            }
            op.bars = std::move(bars.bars);
            break;
        }
        }
        page.ops.push_back(std::move(op));
    }
}

void Layout::startPage()
{
    doc_.pages.emplace_back();
    ++page_;
    y_ = t_.marginTop;
    const Band *footer = t_.band(BandKind::PageFooter);
    bodyBottom_ = t_.pageHeight() - t_.marginBottom - (footer ? footer->height : 0);
    if (page_ == 0)
        if (const Band *rh = t_.band(BandKind::ReportHeader); rh && holds(rh->when, -1)) {
            double h = 0;
            const auto items = prepare(*rh, h);
            put(items, t_.marginLeft, y_);
            y_ += h;
        }
    if (const Band *ph = t_.band(BandKind::PageHeader); ph && holds(ph->when, -1)) {
        double h = 0;
        const auto items = prepare(*ph, h);
        put(items, t_.marginLeft, y_);
        y_ += h;
    }
    pageHasBody_ = false;
}

void Layout::closePage()
{
    const Band *pf = t_.band(BandKind::PageFooter);
    if (pf && holds(pf->when, -1)) {
        double h = 0;
        const auto items = prepare(*pf, h);
        put(items, t_.marginLeft, t_.pageHeight() - t_.marginBottom - pf->height);
    }
}

// keepWith: room that must follow the band on the same page (a group header
// keeps with its first detail).
void Layout::place(const Band *band, double keepWith)
{
    if (!band || !holds(band->when, band->group))
        return;
    double h = 0;
    auto items = prepare(*band, h);
    // A band never splits: it goes whole to the next page. One taller than a
    // whole page prints at the top of its own page, cut at the footer. A
    // newpage band (one letter a unit, one account of the ledger) always opens
    // a page of its own.
    if ((band->newPage || y_ + h + keepWith > bodyBottom_ + 1e-6) && pageHasBody_) {
        closePage();
        startPage();
        items = prepare(*band, h);   // page numbers changed
    }
    put(items, t_.marginLeft, y_);
    y_ += h;
    pageHasBody_ = true;
}

void Layout::addToTotals(const QStringList &row)
{
    auto add = [&](Totals &t) {
        ++t.count;
        for (int i = 0; i < sumFields_.size(); ++i) {
            const int c = sumColumns_[size_t(i)];
            if (c < 0 || c >= row.size())
                continue;
            // An amount beyond the currency, or a sum that would pass it, is
            // left out of the sum and noted; the report goes on.
            const std::optional<Money> v = amountOf(row[c]);
            Money &sum = t.sums[sumFields_[i]];
            int64_t total = 0;
            if (!v || __builtin_add_overflow(sum.units(), v->units(), &total))
                note(QStringLiteral("Valor fora da capacidade, fora da soma de %1: %2").arg(sumFields_[i], row[c]));
            else
                sum = Money::fromUnits(total);
        }
    };
    for (Totals &t : groupTotals_)
        add(t);
    add(reportTotals_);
}

void Layout::runLabels()
{
    const LabelLayout &l = t_.labels;
    const Band &detail = *t_.band(BandKind::Detail);
    const double bodyW = t_.pageWidth() - t_.marginLeft - t_.marginRight;
    const double bodyH = t_.pageHeight() - t_.marginTop - t_.marginBottom;
    const int cols = std::max(1, std::min(l.columns, int((bodyW + l.hgap + 1e-6) / (l.width + l.hgap))));
    const int rows = std::max(1, int((bodyH + l.vgap + 1e-6) / (l.height + l.vgap)));
    int cellIndex = cols * rows;   // forces the first page
    for (const QStringList &row : d_.rows) {
        row_ = &row;
        addToTotals(row);
        if (!holds(detail.when, -1))
            continue;
        if (cellIndex == cols * rows) {
            doc_.pages.emplace_back();
            ++page_;
            cellIndex = 0;
        }
        const int col = l.across ? cellIndex % cols : cellIndex / rows;
        const int line = l.across ? cellIndex / cols : cellIndex % rows;
        double h = 0;
        const auto items = prepare(detail, h);
        put(items, t_.marginLeft + col * (l.width + l.hgap), t_.marginTop + line * (l.height + l.vgap));
        ++cellIndex;
    }
    if (doc_.pages.empty())
        doc_.pages.emplace_back();
}

ReportDocument Layout::run()
{
    doc_.title = d_.title;
    doc_.pageSize = t_.pageSize;
    doc_.landscape = t_.landscape;
    for (int i = 0; i < d_.columns.size(); ++i)
        columns_.insert(d_.columns[i].toLower(), i);
    for (auto it = d_.formulas.constBegin(); it != d_.formulas.constEnd(); ++it) {
        QString v = it.value();
        if (v.size() >= 2 && v.startsWith(u'"') && v.endsWith(u'"'))
            v = v.mid(1, v.size() - 2);
        formulas_.insert(it.key().toLower(), v);
    }
    // The fields summed anywhere in the template.
    auto collect = [&](const TextPart &p) {
        if (p.kind == TextPart::Sum && !sumFields_.contains(p.name.toLower())) {
            sumFields_ << p.name.toLower();
            sumColumns_.push_back(columns_.value(p.name.toLower(), -1));
            if (sumColumns_.back() < 0)
                note(QStringLiteral("Campo inexistente nos dados: %1").arg(p.name));
        }
    };
    for (const Band &b : t_.bands)
        for (const Item &it : b.items) {
            for (const TextPart &p : it.parts)
                collect(p);
            collect(it.when.left);
            collect(it.when.right);
        }
    groupTotals_.resize(size_t(t_.groups.size()));

    if (t_.labels.columns > 0) {
        runLabels();
        return std::move(doc_);
    }

    std::vector<int> groupColumns;
    for (const QString &g : t_.groups) {
        groupColumns.push_back(columns_.value(g.toLower(), -1));
        if (groupColumns.back() < 0)
            note(QStringLiteral("Campo inexistente nos dados: %1").arg(g));
    }
    const int levels = int(t_.groups.size());
    auto groupValue = [&](const QStringList &row, int level) {
        const int c = groupColumns[size_t(level)];
        return c >= 0 && c < row.size() ? row[c] : QString();
    };

    row_ = d_.rows.empty() ? nullptr : &d_.rows.front();
    startPage();
    const QStringList *previous = nullptr;
    for (const QStringList &row : d_.rows) {
        // The outermost group whose value changed: its footers close from the
        // innermost out, then its headers open from the outermost in.
        int changed = levels;
        if (!previous)
            changed = 0;
        else
            for (int g = 0; g < levels; ++g)
                if (groupValue(row, g) != groupValue(*previous, g)) {
                    changed = g;
                    break;
                }
        if (previous && changed < levels) {
            row_ = previous;
            for (int g = levels - 1; g >= changed; --g) {
                place(t_.band(BandKind::GroupFooter, g));
                groupTotals_[size_t(g)] = Totals();
            }
        }
        row_ = &row;
        const Band *detail = t_.band(BandKind::Detail);
        for (int g = changed; g < levels; ++g)
            place(t_.band(BandKind::GroupHeader, g), detail->height);
        addToTotals(row);
        place(t_.band(BandKind::Detail));
        previous = &row;
    }
    if (previous)
        for (int g = levels - 1; g >= 0; --g)
            place(t_.band(BandKind::GroupFooter, g));
    place(t_.band(BandKind::ReportFooter));
    closePage();
    return std::move(doc_);
}

} // namespace

QString formatValue(const QString &text, const QString &picture)
{
    if (picture == QLatin1String("trim"))
        return text.trimmed();
    if (text.trimmed().isEmpty())
        return QString();
    if (picture.contains(u'@'))
        return formatText(text, picture);
    if (isNumberPicture(picture)) {
        // A value the picture's number cannot hold prints as it came.
        const std::optional<Money> amount = amountOf(text);
        return amount ? formatMoney(*amount, picture) : text;
    }
    if (isDatePicture(picture)) {
        const QDate d = dateFromText(text.trimmed());
        return d.isValid() ? formatDate(d, picture) : text;
    }
    return text;
}

ReportDocument renderReport(const ReportTemplate &tpl, const ReportData &data)
{
    return Layout(tpl, data).run();
}

ReportDocument renderReport(const ReportTemplate &tpl, const ReportData &data, int primeiraPagina)
{
    return Layout(tpl, data, primeiraPagina).run();
}

namespace {
// How much of a text can show on the page: each line holds at most the box's
// width over the narrowest advance among its characters (with room for
// kerning), and a wrapped text shows only the lines above the page's bottom.
// Drawing only that keeps a text of a megabyte from being shaped whole for
// the few lines that print. Anything the bound cannot be sure of (zero-width
// characters, surrogates, line breaks in an unwrapped text) is drawn whole.
qsizetype visibleLength(const QString &text, const QFontMetricsF &fm, const QRectF &box, double pageWidth,
                        double pageBottom, bool wrap)
{
    if (text.size() < 4096)
        return text.size();
    double least = std::numeric_limits<double>::max();
    QSet<char16_t> seen;
    for (QChar c : text) {
        if (seen.contains(c.unicode()))
            continue;
        seen.insert(c.unicode());
        if (c.isSurrogate() || (!wrap && (c == u'\n' || c == u'\r' || c == QChar::LineSeparator)))
            return text.size();
        least = std::min(least, fm.horizontalAdvance(c));
    }
    if (least <= 0)
        return text.size();
    const double width = wrap ? box.width() : std::max(box.width(), pageWidth);
    const double perLine = width / least * 1.25 + 2;
    const double lines = wrap ? std::max(0.0, pageBottom - box.top()) / fm.lineSpacing() + 2 : 1;
    const double bound = perLine * lines;
    return bound < double(text.size()) ? qsizetype(bound) : text.size();
}
// A one-line text laid out once: its glyph runs, blanks left out (they draw
// nothing and would cost a positioning command each in a PDF), and its size.
// The same labels and statement lines come back on every page.
struct Glifos {
    QList<QGlyphRun> runs;
    double width = 0, height = 0;
};

const Glifos &glifos(const QFont &font, const QString &fontKey, const QString &text)
{
    thread_local QHash<QString, Glifos> cache;
    const QString key = fontKey + QChar(0) + text;
    if (auto it = cache.constFind(key); it != cache.constEnd())
        return *it;
    if (cache.size() > 20000)
        cache.clear();
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e9);
    layout.endLayout();
    Glifos g;
    g.width = line.naturalTextWidth();
    g.height = line.height();
    for (QGlyphRun run : layout.glyphRuns()) {
        const QList<quint32> blank = run.rawFont().glyphIndexesForString(QStringLiteral(" "));
        const QList<quint32> idx = run.glyphIndexes();
        const QList<QPointF> pos = run.positions();
        QList<quint32> keepIdx;
        QList<QPointF> keepPos;
        for (qsizetype i = 0; i < idx.size(); ++i)
            if (blank.isEmpty() || idx[i] != blank[0]) {
                keepIdx << idx[i];
                keepPos << pos[i];
            }
        if (keepIdx.isEmpty())
            continue;
        run.setGlyphIndexes(keepIdx);
        run.setPositions(keepPos);
        g.runs << run;
    }
    return *cache.insert(key, std::move(g));
}
} // namespace

QFont reportFont(const FontSpec &fonte) { return makeFont(fonte); }

void paintPage(QPainter &painter, const ReportDocument &doc, int index, double dotsPerMm)
{
    if (index < 0 || index >= doc.pageCount())
        return;
    std::vector<QFont> fonts;
    QStringList fontKeys;
    fonts.reserve(doc.fonts.size());
    for (const FontSpec &f : doc.fonts) {
        fonts.push_back(makeFont(f));
        fontKeys << fonts.back().key();
    }
    const QString pages = QString::number(doc.pageCount());
    auto u = [](const QRectF &r) { return QRectF(r.x() * kUnits, r.y() * kUnits, r.width() * kUnits, r.height() * kUnits); };

    painter.save();
    painter.scale(dotsPerMm / kUnits, dotsPerMm / kUnits);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const DrawOp &op : doc.pages[size_t(index)].ops) {
        QPen pen(Qt::black, op.pen * kUnits, op.dash ? Qt::DashLine : Qt::SolidLine);
        switch (op.kind) {
        case DrawOp::Text: {
            const QRectF r = u(op.rect);
            if (op.box) {
                painter.setPen(pen);
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(r);
            }
            QString text = op.text;
            text.replace(QChar(kPageCountMark), pages);
            painter.setFont(fonts[size_t(op.font)]);
            painter.setPen(Qt::black);
            // A framed text keeps a small inner margin off its frame.
            const double pad = op.box ? 0.8 * kUnits : 0;
            const QRectF box = r.adjusted(pad, 0, -pad, 0);
            const bool wrap = op.flags & Qt::TextWordWrap;
            if (!wrap && text.size() < 4096 && !text.contains(u'\n') && !text.contains(QChar::LineSeparator)) {
                const Glifos &g = glifos(fonts[size_t(op.font)], fontKeys[op.font], text);
                double x = box.left(), y = box.top();
                if (op.flags & Qt::AlignRight)
                    x = box.right() - g.width;
                else if (op.flags & Qt::AlignHCenter)
                    x = box.left() + (box.width() - g.width) / 2;
                if (op.flags & Qt::AlignVCenter)
                    y = box.top() + (box.height() - g.height) / 2;
                else if (op.flags & Qt::AlignBottom)
                    y = box.bottom() - g.height;
                const bool clip = !(op.flags & Qt::TextDontClip)
                                  && (g.width > box.width() || g.height > box.height() || x < box.left());
                if (clip) {
                    painter.save();
                    painter.setClipRect(box, Qt::IntersectClip);
                }
                for (const QGlyphRun &run : g.runs)
                    painter.drawGlyphRun(QPointF(x, y), run);
                if (clip)
                    painter.restore();
                break;
            }
            if (wrap || (op.flags & Qt::AlignLeft))
                text.truncate(visibleLength(text, QFontMetricsF(painter.font()), box, doc.pageWidth() * kUnits,
                                            doc.pageHeight() * kUnits, wrap));
            painter.drawText(box, op.flags, text);
            break;
        }
        case DrawOp::Line:
            painter.setPen(pen);
            painter.drawLine(u(op.rect).topLeft(), u(op.rect).bottomRight());
            break;
        case DrawOp::Rect:
            painter.setPen(op.pen > 0 ? pen : QPen(Qt::NoPen));
            painter.setBrush(op.fill.isEmpty() ? QBrush(Qt::NoBrush) : QBrush(QColor(op.fill)));
            painter.drawRect(u(op.rect));
            break;
        case DrawOp::Bars: {
            std::vector<QRectF> bars;
            bars.reserve(op.bars.size());
            for (const QRectF &b : op.bars)
                bars.push_back(u(b));
            drawBars(painter, bars);
            break;
        }
        }
    }
    painter.restore();
}

bool printReport(const ReportDocument &doc, QPagedPaintDevice &device)
{
    if (auto *printer = dynamic_cast<QPrinter *>(&device))
        printer->setFullPage(true);
    device.setPageLayout(QPageLayout(doc.pageSize, doc.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                     QMarginsF(0, 0, 0, 0)));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double dotsPerMm = device.logicalDpiX() / 25.4;
    for (int i = 0; i < doc.pageCount(); ++i) {
        if (i > 0)
            device.newPage();
        paintPage(painter, doc, i, dotsPerMm);
    }
    return painter.end();
}

bool writePdfQt(const ReportDocument &doc, const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        if (error)
            *error = QStringLiteral("Não foi possível gravar %1: %2").arg(path, file.errorString());
        return false;
    }
    QPdfWriter writer(&file);
    writer.setTitle(doc.title);
    writer.setCreator(QStringLiteral("Habitarium"));
    writer.setResolution(600);
    if (!printReport(doc, writer)) {
        if (error)
            *error = QStringLiteral("Não foi possível gerar o PDF %1").arg(path);
        return false;
    }
    return true;
}

// Straight through libharu (reporting/pdfdireto.h); QPdfWriter when that
// road declines the document.
bool writePdf(const ReportDocument &doc, const QString &path, QString *error)
{
    if (escrevePdfDireto(doc, path))
        return true;
    return writePdfQt(doc, path, error);
}
