#pragma once
// Money as the original currency type held it: a signed 64-bit count of
// ten-thousandths. Conversion from a double rounds half to even at the fourth
// place, as that type did; everything else is exact integer arithmetic.
#include <cmath>
#include <compare>
#include <cstdint>
#include <stdexcept>

class Money {
public:
    static constexpr int64_t Scale = 10000;

    constexpr Money() = default;
    static constexpr Money fromUnits(int64_t units) { Money m; m.units_ = units; return m; }
    static constexpr Money fromInt(int64_t whole) { return fromUnits(whole * Scale); }
    // Half to even at the fourth place. Values out of the currency range throw.
    static Money fromDouble(double v)
    {
        const double scaled = v * double(Scale);
        if (!std::isfinite(scaled) || std::fabs(scaled) > 9.2e18)
            throw std::overflow_error("Estouro de capacidade");
        return fromUnits(int64_t(std::nearbyint(scaled))); // FE_TONEAREST: ties to even
    }

    constexpr int64_t units() const { return units_; }
    double toDouble() const { return double(units_) / double(Scale); }
    constexpr bool isZero() const { return units_ == 0; }

    constexpr Money operator+(Money o) const { return fromUnits(units_ + o.units_); }
    constexpr Money operator-(Money o) const { return fromUnits(units_ - o.units_); }
    constexpr Money operator-() const { return fromUnits(-units_); }
    Money &operator+=(Money o) { units_ += o.units_; return *this; }
    Money &operator-=(Money o) { units_ -= o.units_; return *this; }
    // Product with a plain number (a quantity, a coefficient), rounded back to
    // four places half to even, as the currency type did.
    Money operator*(double f) const { return fromDouble(toDouble() * f); }

    constexpr auto operator<=>(const Money &) const = default;

private:
    int64_t units_ = 0;
};
