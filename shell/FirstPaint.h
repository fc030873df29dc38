#pragma once

#include <functional>

class QWidget;

/// Runs `task` once, just after `widget` has been painted for the first time (from the event
/// loop, so that the picture reaches the screen first). Nothing runs if the widget goes first.
void AfterFirstPaint(QWidget* widget, std::function<void()> task);
