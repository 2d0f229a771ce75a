#include "core/forms/icones.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {
const QColor kTinta(40, 52, 70);

void predio(QPainter &p, QColor cor)
{
    p.setBrush(cor);
    p.drawRect(8, 4, 16, 25);
    p.setBrush(QColor(255, 244, 190));
    for (int y = 7; y < 24; y += 5)
        for (int x = 11; x < 22; x += 6)
            p.drawRect(x, y, 3, 3);
    p.setBrush(kTinta);
    p.drawRect(14, 24, 4, 5);
}

void pessoa(QPainter &p, QPointF centro, double escala, QColor cor)
{
    p.setBrush(cor);
    p.drawEllipse(centro + QPointF(0, -6 * escala), 4.2 * escala, 4.2 * escala);
    QPainterPath corpo;
    corpo.moveTo(centro.x() - 8 * escala, centro.y() + 9 * escala);
    corpo.quadTo(centro.x() - 8 * escala, centro.y() - 1 * escala, centro.x(), centro.y() - 1 * escala);
    corpo.quadTo(centro.x() + 8 * escala, centro.y() - 1 * escala, centro.x() + 8 * escala, centro.y() + 9 * escala);
    corpo.closeSubpath();
    p.drawPath(corpo);
}

void desenha(QPainter &p, int botao)
{
    p.setPen(QPen(kTinta, 1.4));
    switch (botao) {
    case 1: {  // house: the condominium
        QPainterPath telhado;
        telhado.moveTo(3, 15);
        telhado.lineTo(16, 4);
        telhado.lineTo(29, 15);
        telhado.closeSubpath();
        p.setBrush(QColor(196, 72, 56));
        p.drawPath(telhado);
        p.setBrush(QColor(236, 220, 186));
        p.drawRect(7, 15, 18, 13);
        p.setBrush(kTinta);
        p.drawRect(14, 20, 5, 8);
        break;
    }
    case 2:  // apartments
        predio(p, QColor(110, 150, 205));
        break;
    case 3:  // blocks
        p.setBrush(QColor(230, 160, 60));
        p.drawRect(4, 16, 11, 12);
        p.setBrush(QColor(90, 170, 110));
        p.drawRect(17, 16, 11, 12);
        p.setBrush(QColor(110, 150, 205));
        p.drawRect(10, 4, 12, 12);
        break;
    case 4:  // residents
        pessoa(p, {11, 16}, 1.0, QColor(90, 170, 110));
        pessoa(p, {21, 18}, 0.95, QColor(110, 150, 205));
        break;
    case 5: {  // vehicles
        QPainterPath carro;
        carro.moveTo(3, 22);
        carro.lineTo(3, 16);
        carro.lineTo(8, 15);
        carro.lineTo(12, 9);
        carro.lineTo(22, 9);
        carro.lineTo(26, 15);
        carro.lineTo(29, 16);
        carro.lineTo(29, 22);
        carro.closeSubpath();
        p.setBrush(QColor(196, 72, 56));
        p.drawPath(carro);
        p.setBrush(QColor(200, 230, 250));
        p.drawRect(13, 11, 4, 4);
        p.drawRect(18, 11, 4, 4);
        p.setBrush(kTinta);
        p.drawEllipse(QPointF(9, 23), 3.5, 3.5);
        p.drawEllipse(QPointF(23, 23), 3.5, 3.5);
        break;
    }
    case 6: {  // workforce: a wrench
        p.save();
        p.translate(16, 16);
        p.rotate(-45);
        p.setBrush(QColor(150, 160, 172));
        p.drawRoundedRect(QRectF(-3, -2, 6, 16), 2, 2);
        p.drawEllipse(QPointF(0, -7), 7, 7);
        p.setBrush(QColor(250, 250, 250));
        p.setPen(Qt::NoPen);
        p.drawRect(QRectF(-2.5, -15, 5, 8));
        p.restore();
        break;
    }
    case 7:  // legal persons: a briefcase
        p.setBrush(QColor(150, 100, 60));
        p.drawRoundedRect(QRectF(4, 10, 24, 17), 3, 3);
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(11, 5, 10, 6), 2, 2);
        p.drawLine(4, 17, 28, 17);
        break;
    case 8:  // calendar
        p.setBrush(QColor(250, 250, 250));
        p.drawRect(5, 7, 22, 21);
        p.setBrush(QColor(196, 72, 56));
        p.drawRect(5, 7, 22, 6);
        p.setBrush(kTinta);
        for (int y = 16; y < 27; y += 5)
            for (int x = 8; x < 25; x += 5)
                p.drawRect(x, y, 2, 2);
        break;
    case 9: {  // emission: a receipt with the money sign
        p.setBrush(QColor(250, 250, 240));
        p.drawRect(7, 3, 18, 26);
        QFont f(QStringLiteral("DejaVu Sans"), 12, QFont::Bold);
        p.setFont(f);
        p.setPen(QColor(30, 120, 60));
        p.drawText(QRectF(7, 5, 18, 16), Qt::AlignCenter, QStringLiteral("$"));
        p.setPen(QPen(kTinta, 1));
        p.drawLine(10, 22, 22, 22);
        p.drawLine(10, 25, 19, 25);
        break;
    }
    case 10:  // journal: a book and a pen
        p.setBrush(QColor(60, 100, 160));
        p.drawRect(4, 6, 17, 22);
        p.setBrush(QColor(250, 250, 240));
        p.drawRect(7, 6, 14, 22);
        p.setPen(QPen(kTinta, 1));
        for (int y = 11; y < 26; y += 4)
            p.drawLine(9, y, 18, y);
        p.setPen(QPen(QColor(196, 72, 56), 3, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(19, 25, 28, 8);
        break;
    case 11:  // bar chart
        p.setBrush(QColor(110, 150, 205));
        p.drawRect(5, 17, 6, 11);
        p.setBrush(QColor(90, 170, 110));
        p.drawRect(13, 9, 6, 19);
        p.setBrush(QColor(230, 160, 60));
        p.drawRect(21, 13, 6, 15);
        p.drawLine(3, 28, 29, 28);
        break;
    case 12: {  // change of user
        pessoa(p, {13, 17}, 1.05, QColor(110, 150, 205));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(30, 120, 60), 2.2));
        p.drawArc(QRectF(17, 4, 12, 12), 30 * 16, 260 * 16);
        p.setBrush(QColor(30, 120, 60));
        p.setPen(Qt::NoPen);
        QPolygonF seta({QPointF(27, 3), QPointF(30, 9), QPointF(24, 9)});
        p.drawPolygon(seta);
        break;
    }
    case 13: {  // activate a condominium: a key
        p.setBrush(QColor(220, 180, 40));
        p.drawEllipse(QPointF(10, 12), 6.5, 6.5);
        p.setBrush(QColor(250, 250, 250));
        p.drawEllipse(QPointF(10, 12), 2.2, 2.2);
        p.setBrush(QColor(220, 180, 40));
        QPolygonF haste({QPointF(14, 15), QPointF(28, 26), QPointF(26, 28), QPointF(12, 17)});
        p.drawPolygon(haste);
        p.drawLine(23, 24, 20, 27);
        break;
    }
    case 14:  // printer
        p.setBrush(QColor(250, 250, 250));
        p.drawRect(9, 4, 14, 9);
        p.setBrush(QColor(150, 160, 172));
        p.drawRoundedRect(QRectF(4, 12, 24, 11), 2, 2);
        p.setBrush(QColor(250, 250, 250));
        p.drawRect(9, 19, 14, 9);
        p.setPen(QPen(kTinta, 1));
        p.drawLine(11, 23, 21, 23);
        p.drawLine(11, 26, 18, 26);
        break;
    default:
        break;
    }
}
}

QIcon iconeBarra(int botao)
{
    QIcon icon;
    for (int size : {32, 64}) {
        QPixmap pm(size, size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(size / 32.0, size / 32.0);
        desenha(p, botao);
        p.end();
        icon.addPixmap(pm);
    }
    return icon;
}
