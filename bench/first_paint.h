#pragma once

#include <QMainWindow>

/// Called once the main window has been painted for the first time. A program that links
/// first_paint.cpp defines it; its own main needs to know nothing of it.
void first_painted(QMainWindow& window);
