#pragma once

#include <QPoint>
#include <QString>

#include <memory>

class QMouseEvent;

/// Where the toolkit's versions differ in what the program asks of them: Qt 5.15, which is the usual one, and Qt 6.
namespace Toolkit {

/// Switches on what a screen of high density needs. To be called before the application object is made.
void useHighDpi();

/// Makes the names of files UTF-8 whatever the locale says (that of a bare system is plain ASCII): languages are named
/// as their speakers write them. To be called before the first file is opened.
void useUtf8Names();

/// Keeps the windows open when the session manager asks for what is to be saved: the session may go on after it.
void keepWindowsOnCommit();

/// Where on the screens the mouse was when it sent @p event.
[[nodiscard]] QPoint globalPosition(const QMouseEvent& event);

/// Decodes UTF-8 that comes in pieces, such as what a process prints on one channel. Keeps the first part of a
/// character that was split between two pieces.
class Utf8Decoder
{
public:
    Utf8Decoder();
    ~Utf8Decoder();

    /// Begins anew: what was kept is dropped.
    void reset();

    /// The characters that @p piece completes. What is not UTF-8 becomes replacement characters.
    [[nodiscard]] QString decode(const QByteArray& piece);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Toolkit
