// RelojDeArena: the hourglass pointer for as long as the object lives.
#pragma once

#include <QCursor>
#include <QGuiApplication>

class RelojDeArena
{
public:
    RelojDeArena() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~RelojDeArena() { QGuiApplication::restoreOverrideCursor(); }
    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;
};
