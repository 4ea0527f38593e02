// LienzoQueRecuerda: a surface that draws nothing and keeps what was asked of it, in order.
#pragma once

#include "LienzoMapa.h"

#include <array>
#include <vector>

class LienzoQueRecuerda final : public LienzoMapa
{
public:
    enum class Tipo
    {
        Linea,
        Rectangulo,
        Pin,
        Circulo,
        Disco,
        Cuadrilatero,
        Texto,
    };

    struct Forma
    {
        Tipo tipo{};
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // of circles: centre
        double medida = 0;                     // width, radius or text size
        std::int32_t color = 0, contorno = 0;
        double alfa = 1;
        int segmentos = 0;
        std::array<Esquina, 4> esquinas{};
        std::array<Color, 4> colores{};
        QString texto;
        bool negrita = false;
    };

    std::vector<Forma> formas;

    std::vector<Forma> De(Tipo tipo) const
    {
        std::vector<Forma> r;
        for (const Forma& f : formas)
            if (f.tipo == tipo)
                r.push_back(f);
        return r;
    }

    std::vector<Forma> Lineas(std::int32_t color) const
    {
        std::vector<Forma> r;
        for (const Forma& f : formas)
            if (f.tipo == Tipo::Linea && f.color == color)
                r.push_back(f);
        return r;
    }

    void Linea(double x1, double y1, double x2, double y2, std::int32_t color, double ancho) override
    {
        Forma& f = Nueva(Tipo::Linea, x1, y1);
        f.x2 = x2;
        f.y2 = y2;
        f.color = color;
        f.medida = ancho;
    }
    void Rectangulo(double x1, double y1, double x2, double y2, std::int32_t color) override
    {
        Forma& f = Nueva(Tipo::Rectangulo, x1, y1);
        f.x2 = x2;
        f.y2 = y2;
        f.color = color;
    }
    void Pin(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) override
    {
        Redonda(Tipo::Pin, x, y, radio, relleno).contorno = contorno;
    }
    void Circulo(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) override
    {
        Redonda(Tipo::Circulo, x, y, radio, relleno).contorno = contorno;
    }
    void DiscoAlfa(double x, double y, double radio, std::int32_t color, double alfa, int segmentos) override
    {
        Forma& f = Redonda(Tipo::Disco, x, y, radio, color);
        f.alfa = alfa;
        f.segmentos = segmentos;
    }
    void Cuadrilatero(const Esquina (&esquinas)[4], const Color& color) override
    {
        Cuadrilatero(esquinas, {color, color, color, color});
    }
    void Cuadrilatero(const Esquina (&esquinas)[4], const Color (&colores)[4]) override
    {
        Forma& f = Nueva(Tipo::Cuadrilatero, esquinas[0].x, esquinas[0].y);
        f.esquinas = std::to_array(esquinas);
        f.colores = std::to_array(colores);
    }
    int MedirTexto(const QString& texto, int tamano, bool negrita) override // a fixed letter
    {
        return static_cast<int>(texto.size()) * (tamano + (negrita ? 1 : 0)) * 2 / 3;
    }
    void Texto(const QString& texto, double x, double y, std::int32_t color, int tamano,
               bool negrita) override
    {
        Forma& f = Nueva(Tipo::Texto, x, y);
        f.texto = texto;
        f.color = color;
        f.medida = tamano;
        f.negrita = negrita;
    }

private:
    Forma& Nueva(Tipo tipo, double x, double y)
    {
        Forma f;
        f.tipo = tipo;
        f.x1 = x;
        f.y1 = y;
        formas.push_back(f);
        return formas.back();
    }
    Forma& Redonda(Tipo tipo, double x, double y, double radio, std::int32_t color)
    {
        Forma& f = Nueva(tipo, x, y);
        f.medida = radio;
        f.color = color;
        return f;
    }
};
