#pragma once
#include "common/OrvaneDspException.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

/** The message of the exception that an operation throws, or "nothing". Suppresses its log on stderr. */
template <typename Operation>
std::string raised (Operation&& operation)
{
    std::string message = "nothing";
    testing::internal::CaptureStderr();
    try {
        std::forward<Operation> (operation)();
    } catch (const qel::Exception& e) {
        message = e.what();
    }
    testing::internal::GetCapturedStderr();
    return message;
}
