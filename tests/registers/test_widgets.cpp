// The widget kit: masked, date and number fields, the grid's order and
// search, and the helpers that act on all the fields of a frame.
#include "registerssupport.h"

#include "core/conversions.h"
#include "core/widgets/campos.h"
#include "core/widgets/datefield.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/numberfield.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <vector>

TEST(WidgetKit, MaskedTextKeepsPromptsAndLiterals)
{
    MaskEdit cnpj;
    cnpj.setMascara(QStringLiteral("##.###.###/####-##"));
    EXPECT_EQ(cnpj.textoMascarado(), QStringLiteral("__.___.___/____-__"));
    EXPECT_EQ(cnpj.textoVazio(), QStringLiteral("__.___.___/____-__"));
    EXPECT_TRUE(cnpj.textoPuro().isEmpty());
    QTest::keyClicks(&cnpj, QStringLiteral("1234"));
    EXPECT_EQ(cnpj.textoMascarado(), QStringLiteral("12.34_.___/____-__"));
    EXPECT_EQ(cnpj.textoPuro(), QStringLiteral("1234"));
    // A letter is no digit.
    MaskEdit cep;
    cep.setMascara(QStringLiteral("#####-###"));
    QTest::keyClicks(&cep, QStringLiteral("1a2"));
    EXPECT_EQ(cep.textoMascarado(), QStringLiteral("12___-___"));
    cep.setText(QStringLiteral("04117-040"));
    EXPECT_EQ(cep.textoMascarado(), QStringLiteral("04117-040"));
    cep.clear();
    EXPECT_EQ(cep.textoMascarado(), QStringLiteral("_____-___"));
}

TEST(WidgetKit, DateFieldsFormatsLimitsAndStatementText)
{
    DateField dia;
    EXPECT_EQ(dia.textoMascarado(), kEmptyDate);
    EXPECT_TRUE(dia.vazio());
    EXPECT_TRUE(dia.valido());
    EXPECT_EQ(dia.dataSql(), QStringLiteral("Null"));
    dia.setText(QStringLiteral("15/03/1980"));
    EXPECT_EQ(dia.data(), QDate(1980, 3, 15));
    EXPECT_EQ(dia.dataSql(), QStringLiteral("#03/15/1980#"));
    dia.setText(QStringLiteral("31/02/2000"));
    EXPECT_FALSE(dia.valido());
    dia.setMinimo(QDate(1900, 1, 1));
    dia.setMaximo(QDate(2008, 12, 31));
    dia.setData(QDate(1899, 12, 31));
    EXPECT_FALSE(dia.valido());
    dia.setData(QDate(2009, 1, 1));
    EXPECT_FALSE(dia.valido());
    dia.setData(QDate(2008, 12, 31));
    EXPECT_TRUE(dia.valido());
    dia.setData(QDate());
    EXPECT_EQ(dia.textoMascarado(), kEmptyDate);

    DateField mes(nullptr, DateField::MesAno);
    EXPECT_EQ(mes.textoMascarado(), kEmptyMonthYear);
    mes.setData(QDate(2008, 7, 20));
    EXPECT_EQ(mes.textoMascarado(), QStringLiteral("07/2008"));
    EXPECT_EQ(mes.data(), QDate(2008, 7, 1));
    mes.setText(QStringLiteral("13/2008"));
    EXPECT_FALSE(mes.valido());

    DateField ano(nullptr, DateField::Ano);
    EXPECT_EQ(ano.textoMascarado(), QStringLiteral("____"));
    ano.setText(QStringLiteral("2008"));
    EXPECT_EQ(ano.data(), QDate(2008, 1, 1));
}

TEST(WidgetKit, NumberFieldPictureAndStatementValue)
{
    NumberField n(nullptr, QStringLiteral("#,##0.00"));
    n.setValor(1234.5);
    EXPECT_EQ(n.text(), QStringLiteral("1.234,50"));
    EXPECT_DOUBLE_EQ(n.valor(), 1234.5);
    EXPECT_EQ(n.valorSql(), QStringLiteral("1234.50"));
    n.clear();
    EXPECT_EQ(n.valorSql(), QStringLiteral("0"));
    // Letters and a second comma are refused as typed.
    QTest::keyClicks(&n, QStringLiteral("-1a2,5,7"));
    EXPECT_EQ(n.text(), QStringLiteral("-12,57"));
    EXPECT_DOUBLE_EQ(n.valor(), -12.57);
    // The decimal key types the comma: a point typed before any comma, or the
    // keypad's decimal key. With a comma there a point is refused.
    struct Teclas {
        std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> keys;
        const char *text;
    };
    const Qt::KeyboardModifiers kp = Qt::KeypadModifier, none = Qt::NoModifier;
    for (const Teclas &t : {Teclas{{{Qt::Key_1, none}, {Qt::Key_Period, none}, {Qt::Key_5, none}}, "1,5"},
                            Teclas{{{Qt::Key_2, kp}, {Qt::Key_Period, kp}, {Qt::Key_5, kp}}, "2,5"},
                            Teclas{{{Qt::Key_3, kp}, {Qt::Key_Comma, kp}, {Qt::Key_5, kp}}, "3,5"},
                            Teclas{{{Qt::Key_4, none}, {Qt::Key_Comma, none}, {Qt::Key_5, none}, {Qt::Key_Period, none}}, "4,5"}}) {
        n.clear();
        for (const auto &[key, modifiers] : t.keys)
            QTest::keyClick(&n, key, modifiers);
        EXPECT_EQ(n.text(), QString::fromLatin1(t.text));
    }
    n.clear();
    QTest::keyClicks(&n, QStringLiteral("1.5"));
    EXPECT_DOUBLE_EQ(n.valor(), 1.5);
}

TEST(WidgetKit, GridSortsAndSearchesInOrder)
{
    GradeModel m;
    m.setTitulos({QStringLiteral("Código"), QStringLiteral("Nome")});
    m.setColunaNumerica(0);
    m.adiciona({QStringLiteral("10"), QStringLiteral("Bravo")});
    m.adiciona({QStringLiteral("9"), QStringLiteral("alfa")});
    m.adiciona({QStringLiteral("100"), QStringLiteral("Charlie")});

    // Codes by number, names as text without regard to case.
    m.sort(0);
    EXPECT_EQ(m.texto(0, 0), QStringLiteral("9"));
    EXPECT_EQ(m.texto(2, 0), QStringLiteral("100"));
    m.sort(1, Qt::DescendingOrder);
    EXPECT_EQ(m.texto(0, 1), QStringLiteral("Charlie"));
    EXPECT_EQ(m.texto(2, 1), QStringLiteral("alfa"));

    // The search sorts on its column, then finds the first row that begins with the text.
    EXPECT_EQ(m.texto(m.procura(1, QStringLiteral("br")), 0), QStringLiteral("10"));
    EXPECT_EQ(m.colunaOrdenada(), 1);
    EXPECT_EQ(m.procura(1, QStringLiteral("Delta")), -1);
    EXPECT_EQ(m.texto(m.procuraNumero(0, 100), 1), QStringLiteral("Charlie"));
    EXPECT_EQ(m.procuraNumero(0, 11), -1);

    // A new row goes to its sorted place.
    const QStringList novo{QStringLiteral("50"), QStringLiteral("Eco")};
    m.insere(m.lugarOrdenado(novo), novo);
    EXPECT_EQ(m.texto(2, 0), QStringLiteral("50"));
    EXPECT_EQ(m.linhaDe(0, QStringLiteral("50")), 2);
    m.remove(2);
    EXPECT_EQ(m.rowCount(), 3);
    EXPECT_EQ(m.linhaDe(0, QStringLiteral("50")), -1);

    // Dates by the day they name and amounts by value, not as text.
    GradeModel d;
    d.setTitulos({QStringLiteral("Data"), QStringLiteral("Valor")});
    d.setTipoColuna(0, GradeModel::Data);
    d.setTipoColuna(1, GradeModel::Valor);
    d.adiciona({QStringLiteral("15/12/2008"), QStringLiteral("1.200,00")});
    d.adiciona({QStringLiteral("02/01/2009"), QStringLiteral("350,00")});
    d.adiciona({QStringLiteral("01/03/2008"), QStringLiteral("-8,50")});
    d.adiciona({QStringLiteral("20/12/2008"), QStringLiteral("12.480,00")});
    d.sort(0);
    EXPECT_EQ(d.texto(0, 0), QStringLiteral("01/03/2008"));
    EXPECT_EQ(d.texto(3, 0), QStringLiteral("02/01/2009"));
    d.sort(1);
    EXPECT_EQ(d.texto(0, 1), QStringLiteral("-8,50"));
    EXPECT_EQ(d.texto(1, 1), QStringLiteral("350,00"));
    EXPECT_EQ(d.texto(3, 1), QStringLiteral("12.480,00"));
    EXPECT_EQ(d.texto(d.procura(0, QStringLiteral("20/12")), 1), QStringLiteral("12.480,00"));
}

TEST(WidgetKit, ClearEnableAndFillTheFieldsOfAFrame)
{
    QFrame frame;
    auto *texto = new QLineEdit(&frame);
    auto *cep = new MaskEdit(&frame);
    cep->setMascara(QStringLiteral("#####-###"));
    auto *caixa = new QCheckBox(&frame);
    auto *combo = new QComboBox(&frame);
    combo->addItems({QStringLiteral("A"), QStringLiteral("B")});
    auto *dia = new DateField(&frame);
    auto *mes = new DateField(&frame, DateField::MesAno);
    auto *ano = new DateField(&frame, DateField::Ano);
    auto *valor = new NumberField(&frame);
    auto *botao = new QPushButton(&frame);

    texto->setText(QStringLiteral("x"));
    cep->setText(QStringLiteral("12345-678"));
    caixa->setChecked(true);
    combo->setCurrentIndex(1);
    dia->setText(QStringLiteral("01/02/2003"));
    mes->setText(QStringLiteral("02/2003"));
    ano->setText(QStringLiteral("2003"));
    valor->setValor(7);
    LimpaCampos(frame);
    EXPECT_TRUE(texto->text().isEmpty());
    EXPECT_EQ(cep->textoMascarado(), QStringLiteral("_____-___"));
    EXPECT_FALSE(caixa->isChecked());
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_EQ(dia->textoMascarado(), kEmptyDate);
    EXPECT_EQ(mes->textoMascarado(), QStringLiteral("02/2003"));  // month and year are left as they are
    EXPECT_EQ(ano->textoMascarado(), QStringLiteral("____"));
    EXPECT_EQ(valor->text(), QStringLiteral("0,00"));

    HabilitaCampos(frame, false);
    for (QWidget *w : std::initializer_list<QWidget *>{texto, cep, caixa, combo, dia, valor, botao})
        EXPECT_FALSE(w->isEnabled()) << w->metaObject()->className();
    EXPECT_EQ(texto->palette().color(QPalette::Base), frame.palette().color(QPalette::Button));
    HabilitaCampos(frame, true);
    EXPECT_TRUE(botao->isEnabled());
    EXPECT_EQ(texto->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(dia->palette().color(QPalette::Base), QColor(Qt::white));

    auto *cheio = new QLineEdit(QStringLiteral("a"), &frame);
    PreencheVazios(frame);
    EXPECT_EQ(texto->text(), QStringLiteral(" "));
    EXPECT_EQ(cheio->text(), QStringLiteral("a"));
    EXPECT_EQ(cep->textoMascarado(), QStringLiteral("_____-___"));
}

TEST(WidgetKit, KeyboardEnterQuoteAndSelectionOnFocus)
{
    QWidget form;
    auto *layout = new QVBoxLayout(&form);
    auto *primeiro = new QLineEdit(&form);
    auto *codigo = new MaskEdit(&form);
    codigo->setMascara(QStringLiteral("###"));
    auto *botao = new QPushButton(QStringLiteral("Ok"), &form);
    int cliques = 0;
    QObject::connect(botao, &QPushButton::clicked, [&] { ++cliques; });
    layout->addWidget(primeiro);
    layout->addWidget(codigo);
    layout->addWidget(botao);
    aplicaTeclado(form);
    mostra(form);

    primeiro->setFocus();
    QTest::keyClicks(primeiro, QStringLiteral("a\"b"));
    EXPECT_EQ(primeiro->text(), QStringLiteral("ab"));
    QTest::keyClick(primeiro, Qt::Key_Return);
    EXPECT_TRUE(codigo->hasFocus());
    QApplication::processEvents();
    EXPECT_EQ(codigo->selectionLength(), 3);  // a masked field selects its whole mask
    QTest::keyClick(codigo, Qt::Key_Enter);
    EXPECT_TRUE(botao->hasFocus());
    QTest::keyClick(botao, Qt::Key_Return);  // Enter on a button presses it
    EXPECT_EQ(cliques, 1);
    primeiro->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(primeiro->selectedText(), QStringLiteral("ab"));
}
