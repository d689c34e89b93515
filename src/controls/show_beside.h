// Shows a window that nobody asked for just now.
#pragma once

class QWidget;

// As QWidget::show, but an open menu or list stays open.
void Show_BesideMenus(QWidget& window);
