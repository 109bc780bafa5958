#include "AccountObject.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

// Clients hand over what they send as their cookie.
std::string sessionIn(const std::string& text)
{
    return text.compare(0, 4, "SID=") == 0 ? text.substr(4) : text;
}

class WebInterface : public AccountObject
{
public:
    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key == "check_admin_password") {
            const bool right =
                command.value == valueIn(work.state.running.read(), command.instance, "password");
            work.answer(command, "admin_password", right ? "ok" : "error");
        } else if (command.key == "check_session") {
            const bool lives = std::count(work.sessions.begin(), work.sessions.end(),
                                          sessionIn(command.value)) > 0;
            work.answer(command, lives ? "session_ok" : "session_err", "1");
        } else if (command.key == "delete_session") {
            work.endedSessions.push_back(command.value.empty() ? work.session
                                                               : sessionIn(command.value));
        } else {
            return AccountObject::command(work, command);
        }
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& webInterface()
{
    static const WebInterface kind;
    return kind;
}

} // namespace quorvel::simulator
