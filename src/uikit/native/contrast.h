#pragma once

#include <QPalette>

/// How far two colours stand apart for the eye, from 1 for the same to 21 for black and white: the
/// ratio of their luminances by which the accessibility guidelines of the web measure texts.
double ContrastOf(const QColor& a, const QColor& b);

/// True where a text in that ink can be read without effort.
bool IsReadable(const QColor& ink, const QColor& back);

/// The wished ink where it can be read on that colour, else black or white.
QColor ReadableInk(const QColor& wished, const QColor& back);

/// Gives a background role of a palette a colour of somebody else's, and the role that is written
/// on it an ink that can be read there.
void SetBack(QPalette& palette, QPalette::ColorRole back, const QColor& color);

/// Makes what is written on a background role readable on another colour, too.
void SetInkFor(QPalette& palette, QPalette::ColorRole back, const QColor& color);
