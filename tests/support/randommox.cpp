#include "randommox.h"

#include <algorithm>

namespace {

class Dice {
public:
    explicit Dice(std::mt19937& random) : random_(random) {}
    int Between(int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random_);
    }
    uint8_t Byte() { return static_cast<uint8_t>(Between(0, 255)); }
    int16_t Word() { return static_cast<int16_t>(Between(-32768, 32767)); }
    bool Chance(int percent) { return Between(1, 100) <= percent; }
    std::mt19937& engine() { return random_; }

private:
    std::mt19937& random_;
};

std::vector<uint8_t> Bytes(Dice& dice, int count) {
    std::vector<uint8_t> bytes(static_cast<size_t>(count));
    for (uint8_t& b : bytes)
        b = dice.Byte();
    return bytes;
}

void AddEntry(Dice& dice, StreamBytes& stream, bool prefixed, uint8_t type) {
    if (prefixed)
        stream.Prefix(static_cast<uint8_t>(dice.Between(kFirstDisplayCode, kLastDisplayCode)),
                      dice.Byte());
    const int corners = dice.Chance(5) ? dice.Between(7, 60) : dice.Between(0, 6);
    switch (type) {
    case 1:
        stream.Line(dice.Byte(), dice.Byte(), dice.Byte());
        break;
    case 2:
        stream.Hardpoint(dice.Chance(50) ? static_cast<uint8_t>(dice.Between(25, 29)) : dice.Byte(),
                         dice.Byte());
        break;
    case 3:
        stream.ColouredPoly(Bytes(dice, corners), dice.Byte());
        break;
    case 4: {
        std::vector<std::array<uint8_t, 2>> pairs(static_cast<size_t>(corners));
        for (auto& pair : pairs)
            pair = {dice.Byte(), dice.Byte()};
        stream.GouraudPoly(pairs);
        break;
    }
    default: {
        std::vector<StreamBytes::Corner> triples(static_cast<size_t>(corners));
        for (auto& triple : triples)
            triple = {dice.Byte(), dice.Byte(), dice.Byte()};
        stream.MappedPoly(type, triples, dice.Byte(), dice.Byte());
        break;
    }
    }
}

std::vector<uint8_t> RandomStream(Dice& dice, const RandomMoxOptions& options) {
    StreamBytes stream;
    if (dice.Chance(15))
        return stream.End().bytes;
    const int entries =
        options.longLists && dice.Chance(3) ? dice.Between(101, 130) : dice.Between(1, 8);
    for (int j = 0; j < entries; ++j) {
        const bool prefixed = dice.Chance(30);
        if (prefixed && options.prefixedNulls && dice.Chance(10)) {
            // A NULL entry ends the list it is in.
            stream.Prefix(static_cast<uint8_t>(dice.Between(kFirstDisplayCode, kLastDisplayCode)),
                          dice.Byte());
            return stream.End().bytes;
        }
        // Behind a display prefix any byte but 255 is a Type; without one only 0 to 6.
        const uint8_t type = static_cast<uint8_t>(prefixed && dice.Chance(20) ? dice.Between(7, 254)
                                                                              : dice.Between(0, 6));
        AddEntry(dice, stream, prefixed, type);
    }
    return stream.End().bytes;
}

} // namespace

MoxBuilder RandomMox(std::mt19937& random, const RandomMoxOptions& options) {
    Dice dice(random);
    MoxBuilder builder;
    builder.radius = dice.Word();
    const int nameLength = dice.Between(0, kTextureNameLength);
    for (int c = 0; c < kTextureNameLength; ++c)
        builder.texture[c] = c < nameLength ? dice.Byte() : (dice.Chance(50) ? 0 : ' ');

    builder.parts.resize(static_cast<size_t>(dice.Between(0, 4)));
    for (Part& part : builder.parts)
        part =
            Part{static_cast<uint8_t>(dice.Between(0, 2)), static_cast<uint8_t>(dice.Between(0, 7)),
                 dice.Word(), dice.Word(), dice.Word()};
    if (builder.parts.empty() && dice.Chance(30))
        builder.numParts = 0;
    builder.nodes.resize(static_cast<size_t>(dice.Between(0, 40)));
    for (Node& node : builder.nodes)
        node = Node{dice.Word(), dice.Word(), dice.Word(),
                    static_cast<int16_t>(dice.Between(0, static_cast<int>(builder.parts.size())))};

    const int elements = dice.Between(0, 12);
    builder.root = {dice.Byte(), dice.Byte()};
    for (int i = 0; i < elements; ++i) {
        builder.planes.push_back(NRMRecord{dice.Word(), dice.Word(), dice.Word(),
                                           static_cast<int32_t>(dice.engine()()), dice.Word()});
        builder.children.push_back({dice.Byte(), dice.Byte()});
        builder.streams.push_back(RandomStream(dice, options));
    }
    // Half the files have their streams out of element order, with gaps and trailing bytes.
    if (dice.Chance(50)) {
        builder.streamOrder.resize(static_cast<size_t>(elements));
        for (int i = 0; i < elements; ++i)
            builder.streamOrder[static_cast<size_t>(i)] = i;
        std::shuffle(builder.streamOrder.begin(), builder.streamOrder.end(), random);
        builder.gapBefore = static_cast<size_t>(dice.Between(0, 3));
        builder.trailer = Bytes(dice, dice.Between(0, 4));
    }
    return builder;
}
