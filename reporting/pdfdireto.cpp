#include "reporting/pdfdireto.h"

#include <QByteArray>
#include <QFile>
#include <QFontMetricsF>
#include <QHash>
#include <QTextLayout>
#include <fontconfig/fontconfig.h>
#include <hpdf.h>
#include <memory>
#include <mutex>
#include <optional>

namespace {

constexpr double kPt = 72.0 / 25.4;   // points per millimetre
constexpr double kUnits = 100.0;      // the layout measures text in hundredths of a mm

// WinAnsi (cp1252) for the characters the slips and lists print; nothing for
// one it does not have.
std::optional<QByteArray> winAnsi(const QString &text)
{
    static const QHash<char16_t, char> extra{
        {0x20AC, char(0x80)}, {0x201A, char(0x82)}, {0x0192, char(0x83)}, {0x201E, char(0x84)}, {0x2026, char(0x85)},
        {0x2020, char(0x86)}, {0x2021, char(0x87)}, {0x02C6, char(0x88)}, {0x2030, char(0x89)}, {0x0160, char(0x8A)},
        {0x2039, char(0x8B)}, {0x0152, char(0x8C)}, {0x017D, char(0x8E)}, {0x2018, char(0x91)}, {0x2019, char(0x92)},
        {0x201C, char(0x93)}, {0x201D, char(0x94)}, {0x2022, char(0x95)}, {0x2013, char(0x96)}, {0x2014, char(0x97)},
        {0x02DC, char(0x98)}, {0x2122, char(0x99)}, {0x0161, char(0x9A)}, {0x203A, char(0x9B)}, {0x0153, char(0x9C)},
        {0x017E, char(0x9E)}, {0x0178, char(0x9F)}};
    QByteArray out;
    out.reserve(text.size());
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if ((u >= 0x20 && u < 0x7F) || (u >= 0xA0 && u <= 0xFF))
            out.append(char(u));
        else if (auto it = extra.constFind(u); it != extra.constEnd())
            out.append(*it);
        else
            return std::nullopt;
    }
    return out;
}

// The .ttf file fontconfig gives for a family, weight and slant (what Qt
// draws with); empty when it is not a TrueType file. Asked once per font.
QString arquivoFonte(const FontSpec &f)
{
    static std::mutex lock;
    static QHash<QString, QString> cache;
    const QString key = f.family + (f.bold ? u'B' : u'-') + (f.italic ? u'I' : u'-');
    std::lock_guard guard(lock);
    if (auto it = cache.constFind(key); it != cache.constEnd())
        return *it;
    QString file;
    FcPattern *pat = FcPatternCreate();
    const QByteArray family = f.family.toUtf8();
    FcPatternAddString(pat, FC_FAMILY, reinterpret_cast<const FcChar8 *>(family.constData()));
    FcPatternAddInteger(pat, FC_WEIGHT, f.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pat, FC_SLANT, f.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcConfigSubstitute(nullptr, pat, FcMatchPattern);
    FcDefaultSubstitute(pat);
    FcResult result;
    if (FcPattern *match = FcFontMatch(nullptr, pat, &result)) {
        FcChar8 *path = nullptr;
        if (FcPatternGetString(match, FC_FILE, 0, &path) == FcResultMatch)
            file = QString::fromUtf8(reinterpret_cast<const char *>(path));
        FcPatternDestroy(match);
    }
    FcPatternDestroy(pat);
    if (!file.endsWith(QLatin1String(".ttf"), Qt::CaseInsensitive))
        file.clear();
    cache.insert(key, file);
    return file;
}

void semErro(HPDF_STATUS, HPDF_STATUS, void *user) { *static_cast<bool *>(user) = true; }

struct Fonte {
    HPDF_Font font = nullptr;
    double size = 9;                    // points
    double ascent = 0, lineHeight = 0;  // mm, by Qt's metrics: the layout's
    QFont qt;                           // for the lines of a wrapped text
};

class Escritor {
public:
    explicit Escritor(const ReportDocument &doc) : doc_(doc) {}
    ~Escritor()
    {
        if (pdf_)
            HPDF_Free(pdf_);
    }

    bool escreve(const QString &path)
    {
        pdf_ = HPDF_New(semErro, &erro_);
        if (!pdf_)
            return false;
        HPDF_SetCompressionMode(pdf_, HPDF_COMP_ALL);
        if (!preparaFontes())
            return false;
        const QByteArray creator("Habitarium");
        HPDF_SetInfoAttr(pdf_, HPDF_INFO_CREATOR, creator.constData());
        if (auto title = winAnsi(doc_.title))
            HPDF_SetInfoAttr(pdf_, HPDF_INFO_TITLE, title->constData());
        pages_ = QString::number(doc_.pageCount());
        for (int i = 0; i < doc_.pageCount() && !erro_; ++i)
            if (!pagina(doc_.pages[size_t(i)]))
                return false;
        if (erro_)
            return false;
        return HPDF_SaveToFile(pdf_, QFile::encodeName(path).constData()) == HPDF_OK && !erro_;
    }

private:
    bool preparaFontes()
    {
        QHash<QString, const char *> carregadas;
        for (const FontSpec &fonte : doc_.fonts) {
            const QString file = arquivoFonte(fonte);
            if (file.isEmpty())
                return false;
            const char *name = carregadas.value(file);
            if (!name) {
                name = HPDF_LoadTTFontFromFile(pdf_, QFile::encodeName(file).constData(), HPDF_TRUE);
                if (!name || erro_)
                    return false;
                carregadas.insert(file, name);
            }
            Fonte f;
            f.font = HPDF_GetFont(pdf_, name, "WinAnsiEncoding");
            if (!f.font || erro_)
                return false;
            f.size = fonte.size;
            f.qt = reportFont(fonte);
            const QFontMetricsF fm(f.qt);
            f.ascent = fm.ascent() / kUnits;
            f.lineHeight = fm.height() / kUnits;
            fontes_.push_back(f);
        }
        return true;
    }

    double x(double mm) const { return mm * kPt; }
    double y(double mm) const { return (height_ - mm) * kPt; }

    // Width in mm of a WinAnsi text in a font.
    double largura(const Fonte &f, const QByteArray &t)
    {
        const HPDF_TextWidth w = HPDF_Font_TextWidth(f.font, reinterpret_cast<const HPDF_BYTE *>(t.constData()), HPDF_UINT(t.size()));
        return w.width * f.size / 1000.0 / kPt;
    }

    void caneta(double mm, bool dash)
    {
        const double w = std::max(0.01, mm * kPt);
        HPDF_Page_SetLineWidth(page_, HPDF_REAL(w));
        if (dash) {
            // Qt's dash line: 4 pen widths drawn, 2 blank.
            const HPDF_UINT16 p[2] = {HPDF_UINT16(std::max(1L, std::lround(4 * w))), HPDF_UINT16(std::max(1L, std::lround(2 * w)))};
            HPDF_Page_SetDash(page_, p, 2, 0);
        } else {
            HPDF_Page_SetDash(page_, nullptr, 0, 0);
        }
    }

    void retangulo(const QRectF &r)
    {
        HPDF_Page_Rectangle(page_, HPDF_REAL(x(r.left())), HPDF_REAL(y(r.bottom())), HPDF_REAL(r.width() * kPt),
                            HPDF_REAL(r.height() * kPt));
    }

    // One line of text with its baseline at `base` (mm), aligned in the box.
    void linha(const Fonte &f, const QByteArray &t, const QRectF &box, int flags, double base, bool clip)
    {
        if (t.isEmpty())
            return;
        const double w = largura(f, t);
        double left = box.left();
        if (flags & Qt::AlignRight)
            left = box.right() - w;
        else if (flags & Qt::AlignHCenter)
            left = box.left() + (box.width() - w) / 2;
        const bool corta = clip && (w > box.width() + 1e-6 || left < box.left() - 1e-6);
        QByteArray visivel = t;
        if (corta && !(flags & (Qt::AlignRight | Qt::AlignHCenter))) {
            // A text cut at its box keeps only the characters that show whole:
            // the text read back from the PDF is then what the page shows, and
            // never runs into the next column.
            qsizetype cabe = 0, nao = visivel.size();
            while (nao - cabe > 1) {
                const qsizetype meio = (cabe + nao) / 2;
                (largura(f, visivel.left(meio)) <= box.width() + 1e-6 ? cabe : nao) = meio;
            }
            visivel.truncate(cabe);
            if (visivel.isEmpty())
                return;
        }
        if (corta) {
            HPDF_Page_GSave(page_);
            retangulo(box);
            HPDF_Page_Clip(page_);
            HPDF_Page_EndPath(page_);
        }
        HPDF_Page_BeginText(page_);
        HPDF_Page_SetFontAndSize(page_, f.font, HPDF_REAL(f.size));
        HPDF_Page_TextOut(page_, HPDF_REAL(x(left)), HPDF_REAL(y(base)), visivel.constData());
        HPDF_Page_EndText(page_);
        if (corta)
            HPDF_Page_GRestore(page_);
    }

    bool texto(const DrawOp &op)
    {
        const Fonte &f = fontes_[size_t(op.font)];
        if (op.box) {
            caneta(op.pen, op.dash);
            retangulo(op.rect);
            HPDF_Page_Stroke(page_);
        }
        QString text = op.text;
        text.replace(QChar(kPageCountMark), pages_);
        if (text.size() > 4096)
            return false;
        const double pad = op.box ? 0.8 : 0;
        const QRectF box = op.rect.adjusted(pad, 0, -pad, 0);
        const bool clip = !(op.flags & Qt::TextDontClip);
        if (!(op.flags & Qt::TextWordWrap)) {
            if (text.contains(u'\n') || text.contains(QChar::LineSeparator))
                return false;
            const auto t = winAnsi(text);
            if (!t)
                return false;
            double top = box.top();
            if (op.flags & Qt::AlignVCenter)
                top += (box.height() - f.lineHeight) / 2;
            else if (op.flags & Qt::AlignBottom)
                top = box.bottom() - f.lineHeight;
            linha(f, *t, box, op.flags, top + f.ascent, clip);
            return true;
        }
        // A wrapped text: Qt breaks the lines, as the layout measured them.
        QTextLayout layout(text, f.qt);
        QTextOption option(Qt::AlignLeft);
        option.setWrapMode(QTextOption::WordWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        double h = 0;
        std::vector<std::pair<QString, double>> lines;
        for (QTextLine l = layout.createLine(); l.isValid(); l = layout.createLine()) {
            l.setLineWidth(box.width() * kUnits);
            l.setPosition(QPointF(0, h));
            lines.emplace_back(text.mid(l.textStart(), l.textLength()).trimmed(), (h + l.ascent()) / kUnits);
            h += l.height();
        }
        layout.endLayout();
        double top = box.top();
        if (op.flags & Qt::AlignVCenter)
            top += (box.height() - h / kUnits) / 2;
        else if (op.flags & Qt::AlignBottom)
            top = box.bottom() - h / kUnits;
        if (clip) {
            HPDF_Page_GSave(page_);
            retangulo(box);
            HPDF_Page_Clip(page_);
            HPDF_Page_EndPath(page_);
        }
        for (const auto &[line, base] : lines) {
            if (clip && top + base - f.ascent > box.bottom())
                break;
            const auto t = winAnsi(line);
            if (!t)
                return false;
            linha(f, *t, box, op.flags, top + base, false);
        }
        if (clip)
            HPDF_Page_GRestore(page_);
        return true;
    }

    bool pagina(const ReportPage &p)
    {
        page_ = HPDF_AddPage(pdf_);
        height_ = doc_.pageHeight();
        HPDF_Page_SetWidth(page_, HPDF_REAL(doc_.pageWidth() * kPt));
        HPDF_Page_SetHeight(page_, HPDF_REAL(height_ * kPt));
        for (const DrawOp &op : p.ops) {
            switch (op.kind) {
            case DrawOp::Text:
                if (!texto(op))
                    return false;
                break;
            case DrawOp::Line:
                caneta(op.pen, op.dash);
                HPDF_Page_MoveTo(page_, HPDF_REAL(x(op.rect.left())), HPDF_REAL(y(op.rect.top())));
                HPDF_Page_LineTo(page_, HPDF_REAL(x(op.rect.right())), HPDF_REAL(y(op.rect.bottom())));
                HPDF_Page_Stroke(page_);
                break;
            case DrawOp::Rect: {
                const bool fill = !op.fill.isEmpty();
                if (fill) {
                    const QColor c(op.fill);
                    HPDF_Page_SetRGBFill(page_, HPDF_REAL(c.redF()), HPDF_REAL(c.greenF()), HPDF_REAL(c.blueF()));
                }
                if (op.pen > 0)
                    caneta(op.pen, op.dash);
                retangulo(op.rect);
                if (fill && op.pen > 0)
                    HPDF_Page_FillStroke(page_);
                else if (fill)
                    HPDF_Page_Fill(page_);
                else if (op.pen > 0)
                    HPDF_Page_Stroke(page_);
                else
                    HPDF_Page_EndPath(page_);
                if (fill)
                    HPDF_Page_SetRGBFill(page_, 0, 0, 0);
                break;
            }
            case DrawOp::Bars:
                for (const QRectF &b : op.bars)
                    retangulo(b);
                if (!op.bars.empty())
                    HPDF_Page_Fill(page_);
                break;
            }
        }
        return !erro_;
    }

    const ReportDocument &doc_;
    HPDF_Doc pdf_ = nullptr;
    HPDF_Page page_ = nullptr;
    bool erro_ = false;
    double height_ = 0;
    QString pages_;
    std::vector<Fonte> fontes_;
};
} // namespace

bool escrevePdfDireto(const ReportDocument &doc, const QString &path)
{
    Escritor e(doc);
    return e.escreve(path);
}
