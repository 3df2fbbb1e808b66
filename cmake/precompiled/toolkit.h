#pragma once

#include "standard.h"

// What the sources of windows and drawings read besides.
#include <QApplication>
#include <QColor>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QString>
#include <QStyle>
#include <QStyleOption>
#include <QTableView>
#include <QTimer>
#include <QTransform>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWidget>
