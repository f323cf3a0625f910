#pragma once

#include "browser/PageValues.h"
#include "foundation/Query.h"
#include "platform/Console.h"

#include <string>
#include <vector>

namespace orken {

/// Reads what the provider has put into a page's address. Main thread only.
class AddressReader {
public:
    AddressReader(Console& console, PageValues& values) : console_(console), values_(values) {}

    /// Prints the address by its parts, and takes over the values in it that can be decrypted; any other leaves what
    /// was there before.
    void readAddress(const std::string& url);

private:
    void readAesKey(const std::vector<QueryItem>& items);
    void readHash(const std::vector<QueryItem>& items);

    Console& console_;
    PageValues& values_;
};

} // namespace orken
