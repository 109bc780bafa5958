#pragma once

#include "support/FacadeOnGateway.h"
#include "support/RequestCases.h"

#include "protocol/HttpRequestExecutor.h"

#include <boost/make_shared.hpp>
#include <functional>
#include <ostream>

namespace quorvel::test
{

/// An operation of a facade that logs nothing of its own, and how it fails.
template <typename Facade>
struct FailingOperation {
    const char* name;
    std::function<QString(Facade&, AspWebAppErrorCodes&)> call; ///< gives the result as a text
    const char* onFailure;                                      ///< the default result
    int exchanges = 1; ///< how many it makes if each of them fails
};

template <typename Facade>
void PrintTo(const FailingOperation<Facade>& operation, std::ostream* out)
{
    *out << operation.name;
}

/// The ways to fail that all operations share.
template <typename Facade>
class FacadeFailure : public FacadeOnGateway<Facade>,
                      public testing::WithParamInterface<FailingOperation<Facade>>
{
protected:
    void expectDefaultWithoutGateway()
    {
        Facade empty{boost::shared_ptr<Cpe>()};
        expectDefault(empty, 26, lines({"ERROR AspFacade::validateCpe -> Cpe is null!"}));
    }

    void expectDefaultOnGatewayThatIsNotBuilt()
    {
        this->cpe->setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor>());
        expectDefault(this->facade, 27,
                      lines({"ERROR AspFacade::validateCpe -> Cpe::not correctly build!"}));
    }

    /// Expects the default and nothing sent; the family has been taken away.
    void expectDefaultWithoutFamily()
    {
        expectDefault(this->facade, 0, {});
        EXPECT_EQ(this->gateway.connections(), 0);
    }

    void expectDefaultIfTheRequestFails()
    {
        for (int i = 0; i < this->GetParam().exchanges; ++i)
            this->gateway.sendRaw(failedReply);
        expectDefault(this->facade, 29, {});
    }

    void expectDefaultIfTheReplyIsUnreadable()
    {
        for (int i = 0; i < this->GetParam().exchanges; ++i)
            this->gateway.reply(text("<html>"));
        expectDefault(this->facade, 25, {});
    }

    template <typename Implementor>
    void expectDefaultIfTheGatewayDoesNotAnswer(const boost::shared_ptr<Implementor>& implementor)
    {
        implementor->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
        for (int i = 0; i < this->GetParam().exchanges; ++i)
            this->gateway.sendAndHold(QByteArray());
        expectDefault(this->facade, 28, {});
    }

private:
    void expectDefault(Facade& asked, int code, const QStringList& expectedLines)
    {
        EXPECT_EQ(this->GetParam().call(asked, this->error), text(this->GetParam().onFailure));
        EXPECT_EQ(this->error, code);
        EXPECT_EQ(this->ownLines(), expectedLines);
    }
};

} // namespace quorvel::test
