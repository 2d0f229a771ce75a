#include "reporting/template.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSizeF>

TemplateError::TemplateError(const QString &file, int line, const QString &message)
    : std::runtime_error(QStringLiteral("Modelo de relatório %1, linha %2: %3").arg(file).arg(line).arg(message).toStdString()),
      message_(QStringLiteral("Modelo de relatório %1, linha %2: %3").arg(file).arg(line).arg(message))
{
}

const Band *ReportTemplate::band(BandKind kind, int group) const
{
    for (const Band &b : bands)
        if (b.kind == kind && b.group == group)
            return &b;
    return nullptr;
}

double ReportTemplate::pageWidth() const
{
    const QSizeF s = pageSize.size(QPageSize::Millimeter);
    return landscape ? s.height() : s.width();
}

double ReportTemplate::pageHeight() const
{
    const QSizeF s = pageSize.size(QPageSize::Millimeter);
    return landscape ? s.width() : s.height();
}

namespace {

struct Token {
    QString text;
    bool quoted = false;
};

class Parser {
public:
    Parser(const QString &fileName) : file_(fileName) {}
    ReportTemplate parse(const QString &text);

private:
    [[noreturn]] void fail(const QString &message) const { throw TemplateError(file_, line_, message); }

    std::vector<Token> tokenize(const QString &line);
    double number(const Token &t, const char *what);
    std::vector<TextPart> parseText(const QString &text);
    TextPart parseReference(const QString &inside);
    void checkPicture(const QString &picture);
    Condition parseCondition(const std::vector<Token> &tokens, size_t from);
    void parseBand(const std::vector<Token> &tokens);
    void parseItem(const std::vector<Token> &tokens);
    void parseLabels(const std::vector<Token> &tokens);
    // Splits "key=value"; a bare word has an empty value.
    static std::pair<QString, QString> option(const Token &t);

    QString file_;
    int line_ = 0;
    ReportTemplate t_;
    Band *open_ = nullptr;   // the band being read, until its "end"
    int openLine_ = 0;
    int pageLine_ = 0, marginsLine_ = 0;    // where the page and its margins were given
};

std::vector<Token> Parser::tokenize(const QString &line)
{
    std::vector<Token> tokens;
    int i = 0;
    const int n = int(line.size());
    while (i < n) {
        if (line[i].isSpace()) {
            ++i;
            continue;
        }
        if (line[i] == u'#' && tokens.empty())
            break;
        Token t;
        // A token that opens with a quote is text; family="..." stays an option.
        t.quoted = line[i] == u'"';
        while (i < n && !line[i].isSpace()) {
            if (line[i] == u'"') {
                // Quoted text; a doubled quote stands for one quote.
                ++i;
                bool closed = false;
                while (i < n) {
                    if (line[i] == u'"') {
                        if (i + 1 < n && line[i + 1] == u'"') {
                            t.text += u'"';
                            i += 2;
                            continue;
                        }
                        ++i;
                        closed = true;
                        break;
                    }
                    t.text += line[i++];
                }
                if (!closed)
                    fail(QStringLiteral("texto entre aspas sem aspas de fechamento"));
            } else {
                t.text += line[i++];
            }
        }
        tokens.push_back(t);
    }
    return tokens;
}

std::pair<QString, QString> Parser::option(const Token &t)
{
    const qsizetype eq = t.text.indexOf(u'=');
    if (eq < 0 || t.text.startsWith(u'{'))
        return {t.text.toLower(), QString()};
    return {t.text.left(eq).toLower(), t.text.mid(eq + 1)};
}

double Parser::number(const Token &t, const char *what)
{
    bool ok = false;
    const double v = t.text.toDouble(&ok);   // QString::toDouble reads the point, whatever the locale
    if (!ok || t.quoted)
        fail(QStringLiteral("%1 deve ser um número: \"%2\"").arg(QString::fromUtf8(what), t.text));
    return v;
}

void Parser::checkPicture(const QString &picture)
{
    if (picture == QLatin1String("trim"))
        return;
    static const QStringList datePictures = {QStringLiteral("dd/mm/yyyy"), QStringLiteral("mm/dd/yyyy"), QStringLiteral("mm/yyyy"),
                                             QStringLiteral("yyyy"),       QStringLiteral("yymm"),       QStringLiteral("ddmmyy"),
                                             QStringLiteral("ddmm")};
    if (datePictures.contains(picture))
        return;
    static const QRegularExpression textPicture(QStringLiteral("^@+$"));
    if (textPicture.match(picture).hasMatch())
        return;
    // Number pictures: an optional literal prefix ("R$ "), then # 0 , . only.
    static const QRegularExpression numberPicture(QStringLiteral("^[A-Za-z$ ]*[#0][#0,.]*$"));
    if (numberPicture.match(picture).hasMatch() && picture.count(u'.') <= 1)
        return;
    fail(QStringLiteral("formato inválido: \"%1\"").arg(picture));
}

TextPart Parser::parseReference(const QString &inside)
{
    TextPart p;
    QString ref = inside;
    const qsizetype bar = ref.indexOf(u'|');
    if (bar >= 0) {
        p.picture = ref.mid(bar + 1).trimmed();
        ref = ref.left(bar);
        checkPicture(p.picture);
    }
    ref = ref.trimmed();
    if (ref.isEmpty())
        fail(QStringLiteral("referência vazia entre chaves"));
    static const QRegularExpression sum(QStringLiteral("^sum\\(\\s*([^)]+?)\\s*\\)$"), QRegularExpression::CaseInsensitiveOption);
    if (ref.startsWith(u'@')) {
        p.kind = TextPart::Formula;
        p.name = ref.mid(1).trimmed();
        if (p.name.isEmpty())
            fail(QStringLiteral("fórmula sem nome"));
    } else if (ref == QLatin1String("page")) {
        p.kind = TextPart::Page;
    } else if (ref == QLatin1String("pages")) {
        p.kind = TextPart::Pages;
    } else if (ref == QLatin1String("title")) {
        p.kind = TextPart::Title;
    } else if (ref == QLatin1String("date")) {
        p.kind = TextPart::Date;
    } else if (ref == QLatin1String("count")) {
        p.kind = TextPart::Count;
    } else if (const auto m = sum.match(ref); m.hasMatch()) {
        p.kind = TextPart::Sum;
        p.name = m.captured(1);
    } else {
        p.kind = TextPart::Field;
        p.name = ref;
    }
    return p;
}

std::vector<TextPart> Parser::parseText(const QString &text)
{
    std::vector<TextPart> parts;
    QString literal;
    qsizetype i = 0;
    while (i < text.size()) {
        if (text[i] == u'{') {
            const qsizetype close = text.indexOf(u'}', i + 1);
            if (close < 0)
                fail(QStringLiteral("chave sem fechamento em \"%1\"").arg(text));
            if (!literal.isEmpty()) {
                parts.push_back(TextPart{TextPart::Literal, literal, {}});
                literal.clear();
            }
            parts.push_back(parseReference(text.mid(i + 1, close - i - 1)));
            i = close + 1;
        } else if (text[i] == u'}') {
            fail(QStringLiteral("chave de fechamento sem abertura em \"%1\"").arg(text));
        } else {
            literal += text[i++];
        }
    }
    if (!literal.isEmpty())
        parts.push_back(TextPart{TextPart::Literal, literal, {}});
    return parts;
}

Condition Parser::parseCondition(const std::vector<Token> &tokens, size_t from)
{
    auto operand = [&](const Token &t) {
        if (t.quoted)
            return TextPart{TextPart::Literal, t.text, {}};
        if (!t.text.startsWith(u'{') || !t.text.endsWith(u'}'))
            fail(QStringLiteral("condição inválida: \"%1\" deve ser uma referência entre chaves ou um texto entre aspas").arg(t.text));
        return parseReference(t.text.mid(1, t.text.size() - 2));
    };
    Condition c;
    const size_t n = tokens.size() - from;
    if (n == 1) {
        c.op = Condition::NotEmpty;
        c.left = operand(tokens[from]);
    } else if (n == 3 && !tokens[from + 1].quoted &&
               (tokens[from + 1].text == QLatin1String("=") || tokens[from + 1].text == QLatin1String("<>"))) {
        c.op = tokens[from + 1].text == QLatin1String("=") ? Condition::Equal : Condition::NotEqual;
        c.left = operand(tokens[from]);
        c.right = operand(tokens[from + 2]);
    } else {
        fail(QStringLiteral("condição inválida depois de \"when\": use {referência}, ou {referência} = \"texto\", ou <>"));
    }
    return c;
}

void Parser::parseLabels(const std::vector<Token> &tokens)
{
    LabelLayout &l = t_.labels;
    for (size_t i = 1; i < tokens.size(); ++i) {
        const auto [key, value] = option(tokens[i]);
        const Token v{value, false};
        if (key == QLatin1String("columns"))
            l.columns = int(number(v, "columns"));
        else if (key == QLatin1String("width"))
            l.width = number(v, "width");
        else if (key == QLatin1String("height"))
            l.height = number(v, "height");
        else if (key == QLatin1String("hgap"))
            l.hgap = number(v, "hgap");
        else if (key == QLatin1String("vgap"))
            l.vgap = number(v, "vgap");
        else if (key == QLatin1String("order") && (value == QLatin1String("across") || value == QLatin1String("down")))
            l.across = value == QLatin1String("across");
        else
            fail(QStringLiteral("opção desconhecida em labels: \"%1\"").arg(tokens[i].text));
    }
    if (l.columns < 1 || l.width <= 0 || l.height <= 0)
        fail(QStringLiteral("labels precisa de columns, width e height positivos"));
}

void Parser::parseBand(const std::vector<Token> &tokens)
{
    static const std::pair<const char *, BandKind> kinds[] = {
        {"reportheader", BandKind::ReportHeader}, {"pageheader", BandKind::PageHeader},
        {"groupheader", BandKind::GroupHeader},   {"detail", BandKind::Detail},
        {"groupfooter", BandKind::GroupFooter},   {"pagefooter", BandKind::PageFooter},
        {"reportfooter", BandKind::ReportFooter}};
    if (tokens.size() < 2)
        fail(QStringLiteral("band sem tipo"));
    Band b;
    b.line = line_;
    bool known = false;
    for (const auto &[name, kind] : kinds)
        if (tokens[1].text == QLatin1String(name)) {
            b.kind = kind;
            known = true;
        }
    if (!known)
        fail(QStringLiteral("tipo de band desconhecido: \"%1\"").arg(tokens[1].text));
    size_t i = 2;
    if (b.kind == BandKind::GroupHeader || b.kind == BandKind::GroupFooter) {
        if (tokens.size() < 3 || tokens[2].text.contains(u'='))
            fail(QStringLiteral("%1 precisa do nome do campo do grupo").arg(tokens[1].text));
        const QString field = tokens[2].text;
        b.group = int(t_.groups.indexOf(field));
        if (b.group < 0) {
            t_.groups << field;
            b.group = int(t_.groups.size() - 1);
        }
        i = 3;
    }
    bool temAltura = false;
    for (; i < tokens.size(); ++i) {
        if (!tokens[i].quoted && tokens[i].text == QLatin1String("when")) {
            b.when = parseCondition(tokens, i + 1);
            break;
        }
        const auto [key, value] = option(tokens[i]);
        if (key == QLatin1String("height")) {
            b.height = number(Token{value, false}, "height");
            if (b.height < 0)
                fail(QStringLiteral("height não pode ser negativa"));
            temAltura = true;
        } else if (key == QLatin1String("newpage") && value.isEmpty())
            b.newPage = true;
        else
            fail(QStringLiteral("opção desconhecida em band: \"%1\"").arg(tokens[i].text));
    }
    // A label's band takes the label's height; every other band says its own.
    if (!temAltura && t_.labels.columns == 0)
        fail(QStringLiteral("band %1 sem height=").arg(tokens[1].text));
    if (t_.band(b.kind, b.group))
        fail(QStringLiteral("band %1 repetida").arg(tokens[1].text));
    if (t_.labels.columns > 0 && b.kind != BandKind::Detail)
        fail(QStringLiteral("um modelo de etiquetas tem só a band detail"));
    t_.bands.push_back(b);
    open_ = &t_.bands.back();
    openLine_ = line_;
}

void Parser::parseItem(const std::vector<Token> &tokens)
{
    Item it;
    it.line = line_;
    it.font = t_.font;
    const QString &kind = tokens[0].text;
    size_t need = 5;
    if (kind == QLatin1String("text"))
        it.kind = Item::Text;
    else if (kind == QLatin1String("line"))
        it.kind = Item::Line;
    else if (kind == QLatin1String("rect"))
        it.kind = Item::Rect;
    else if (kind == QLatin1String("barcode"))
        it.kind = Item::Barcode;
    else
        fail(QStringLiteral("item desconhecido: \"%1\"").arg(kind));
    const bool hasText = it.kind == Item::Text || it.kind == Item::Barcode;
    if (hasText)
        need = 6;
    if (tokens.size() < need)
        fail(QStringLiteral("%1 precisa de %2").arg(kind, hasText ? QStringLiteral("X Y L A \"texto\"") : QStringLiteral("quatro medidas")));
    it.x = number(tokens[1], "X");
    it.y = number(tokens[2], "Y");
    it.w = number(tokens[3], "a terceira medida");
    it.h = number(tokens[4], "a quarta medida");
    if (hasText) {
        if (!tokens[5].quoted)
            fail(QStringLiteral("o texto do item deve vir entre aspas"));
        it.parts = parseText(tokens[5].text);
    }
    for (size_t i = need; i < tokens.size(); ++i) {
        if (!tokens[i].quoted && tokens[i].text == QLatin1String("when")) {
            it.when = parseCondition(tokens, i + 1);
            break;
        }
        const auto [key, value] = option(tokens[i]);
        const bool text = it.kind == Item::Text;
        if (text && key == QLatin1String("size"))
            it.font.size = number(Token{value, false}, "size");
        else if (text && key == QLatin1String("family") && !value.isEmpty())
            it.font.family = value;
        else if (text && key == QLatin1String("bold"))
            it.font.bold = true;
        else if (text && key == QLatin1String("italic"))
            it.font.italic = true;
        else if (text && key == QLatin1String("align")) {
            it.align &= ~0x0f;
            if (value == QLatin1String("left"))
                it.align |= 0x01;
            else if (value == QLatin1String("right"))
                it.align |= 0x02;
            else if (value == QLatin1String("center"))
                it.align |= 0x04;
            else
                fail(QStringLiteral("align deve ser left, center ou right"));
        } else if (text && key == QLatin1String("valign")) {
            it.align &= ~0xe0;
            if (value == QLatin1String("top"))
                it.align |= 0x20;
            else if (value == QLatin1String("bottom"))
                it.align |= 0x40;
            else if (value == QLatin1String("middle"))
                it.align |= 0x80;
            else
                fail(QStringLiteral("valign deve ser top, middle ou bottom"));
        } else if (text && key == QLatin1String("box"))
            it.box = true;
        else if (text && key == QLatin1String("noclip"))
            it.clip = false;
        else if (text && key == QLatin1String("grow"))
            it.grow = true;
        else if (it.kind != Item::Barcode && key == QLatin1String("width"))
            it.pen = number(Token{value, false}, "width");
        else if (it.kind != Item::Barcode && key == QLatin1String("dash"))
            it.dash = true;
        else if (it.kind == Item::Rect && key == QLatin1String("fill") && !value.isEmpty())
            it.fill = value;
        else
            fail(QStringLiteral("opção desconhecida em %1: \"%2\"").arg(kind, tokens[i].text));
    }
    if (it.kind != Item::Line && (it.w <= 0 || it.h <= 0))
        fail(QStringLiteral("largura e altura devem ser positivas"));
    open_->items.push_back(it);
}

ReportTemplate Parser::parse(const QString &text)
{
    t_.fileName = file_;
    const QStringList lines = text.split(u'\n');
    for (const QString &raw : lines) {
        ++line_;
        const std::vector<Token> tokens = tokenize(raw);
        if (tokens.empty())
            continue;
        const QString &word = tokens[0].text;
        if (tokens[0].quoted)
            fail(QStringLiteral("linha começa com texto entre aspas"));
        if (open_) {
            if (word == QLatin1String("end")) {
                open_ = nullptr;
                continue;
            }
            if (word == QLatin1String("band"))
                fail(QStringLiteral("band aberta na linha %1 sem \"end\"").arg(openLine_));
            parseItem(tokens);
            continue;
        }
        if (word == QLatin1String("band")) {
            parseBand(tokens);
        } else if (word == QLatin1String("page")) {
            pageLine_ = line_;
            if (tokens.size() < 2)
                fail(QStringLiteral("page precisa do tamanho do papel"));
            size_t i = 1;
            const QString size = tokens[1].text.toLower();
            if (size == QLatin1String("a4"))
                t_.pageSize = QPageSize(QPageSize::A4);
            else if (size == QLatin1String("letter"))
                t_.pageSize = QPageSize(QPageSize::Letter);
            else if (size == QLatin1String("legal"))
                t_.pageSize = QPageSize(QPageSize::Legal);
            else {
                if (tokens.size() < 3)
                    fail(QStringLiteral("page: use A4, Letter, Legal ou largura e altura em mm"));
                const double w = number(tokens[1], "a largura do papel");
                const double h = number(tokens[2], "a altura do papel");
                if (w <= 0 || h <= 0)
                    fail(QStringLiteral("tamanho de papel inválido"));
                t_.pageSize = QPageSize(QSizeF(w, h), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
                i = 2;
            }
            for (++i; i < tokens.size(); ++i) {
                if (tokens[i].text == QLatin1String("portrait"))
                    t_.landscape = false;
                else if (tokens[i].text == QLatin1String("landscape"))
                    t_.landscape = true;
                else
                    fail(QStringLiteral("opção desconhecida em page: \"%1\"").arg(tokens[i].text));
            }
        } else if (word == QLatin1String("margins")) {
            marginsLine_ = line_;
            if (tokens.size() != 5)
                fail(QStringLiteral("margins precisa de esquerda, topo, direita e base"));
            t_.marginLeft = number(tokens[1], "a margem");
            t_.marginTop = number(tokens[2], "a margem");
            t_.marginRight = number(tokens[3], "a margem");
            t_.marginBottom = number(tokens[4], "a margem");
        } else if (word == QLatin1String("font")) {
            if (tokens.size() != 3 || !tokens[1].quoted)
                fail(QStringLiteral("font precisa de \"família\" e tamanho"));
            t_.font.family = tokens[1].text;
            t_.font.size = number(tokens[2], "o tamanho da fonte");
        } else if (word == QLatin1String("source")) {
            if (tokens.size() != 3 || !tokens[1].quoted || !tokens[2].quoted)
                fail(QStringLiteral("source precisa de \"arquivo\" e \"comando\""));
            t_.sourceFile = tokens[1].text;
            t_.sourceSql = tokens[2].text;
        } else if (word == QLatin1String("labels")) {
            if (!t_.bands.empty())
                fail(QStringLiteral("labels deve vir antes das bands"));
            parseLabels(tokens);
        } else if (word == QLatin1String("end")) {
            fail(QStringLiteral("\"end\" sem band aberta"));
        } else {
            fail(QStringLiteral("linha desconhecida: \"%1\"").arg(word));
        }
    }
    if (open_)
        throw TemplateError(file_, openLine_, QStringLiteral("band sem \"end\""));
    if (!t_.band(BandKind::Detail))
        throw TemplateError(file_, line_, QStringLiteral("o modelo não tem band detail"));
    // The body between header and footer must hold at least the detail band.
    const double body = t_.pageHeight() - t_.marginTop - t_.marginBottom;
    if (body <= 0)
        throw TemplateError(file_, marginsLine_ ? marginsLine_ : pageLine_ ? pageLine_ : 1,
                            QStringLiteral("as margens não deixam espaço na página"));
    return t_;
}

} // namespace

ReportTemplate parseTemplate(const QString &text, const QString &fileName)
{
    return Parser(fileName).parse(text);
}

ReportTemplate loadTemplate(const QString &path)
{
    QFile f(path);
    const QString name = QFileInfo(path).fileName();
    if (!f.open(QIODevice::ReadOnly))
        throw TemplateError(name, 0, QStringLiteral("arquivo não encontrado ou ilegível (%1)").arg(path));
    return parseTemplate(QString::fromUtf8(f.readAll()), name);
}
