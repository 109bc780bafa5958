#pragma once

#include "assembly/AspCpeRecognizer.h"
#include "support/RecognisedGateway.h"

namespace quorvel::test
{

/// What recognition says and finds.
class Recognition : public RecognisedGateway
{
protected:
    bool recognize()
    {
        AspCpeRecognizer recognizer;
        return recognizer.recognize(info(), parameters);
    }

    ParamMap parameters;
};

} // namespace quorvel::test
