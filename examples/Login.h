#pragma once

#include <quorvel/AuthenticationInfo.h>

#include <QtGlobal>

/// The gateway at `address`, with the user "admin" and the password that stands in the environment
/// variable GATEWAY_PASSWORD: other users of the machine see the arguments of a program.
inline quorvel::AuthenticationInfo loginAt(const char* address)
{
    return {"admin", qEnvironmentVariable("GATEWAY_PASSWORD"), address};
}
