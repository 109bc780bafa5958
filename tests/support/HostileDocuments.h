#pragma once

#include <QByteArray>
#include <iosfwd>
#include <string>
#include <vector>

namespace quorvel::test
{

/// A text, and how often it comes; "%1" in it stands for the number of the repetition.
struct Repeated {
    QByteArray text;
    int times = 1;
};

/// A reply's body that no well-meaning gateway sends, in parts, since some are large. Each names
/// the firmware version 1.2 in dialect 1.0.1, so that it shows if something of it is read.
struct HostileDocument {
    const char* name;
    std::vector<Repeated> parts;

    QByteArray content() const;
};

void PrintTo(const HostileDocument& document, std::ostream* out);

/// The name of a document's test.
struct DocumentName {
    template <typename Info>
    std::string operator()(const Info& info) const
    {
        return info.param.name;
    }
};

std::vector<HostileDocument> illFormedDocuments();
std::vector<HostileDocument> entityDocuments();
/// Nested too deeply.
std::vector<HostileDocument> deepDocuments();
/// Too many of something.
std::vector<HostileDocument> crowdedDocuments();
/// Odd or large, but to be read.
std::vector<HostileDocument> oddDocuments();

} // namespace quorvel::test
