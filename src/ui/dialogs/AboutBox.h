#pragma once

class QWidget;

/// Name, version, and the licences of what the program is built on.
void showAboutBox(QWidget *parent);
