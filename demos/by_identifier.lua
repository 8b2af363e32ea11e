-- Knows only what is published: a ProgID or class id, names, member ids.
local decks = zilvo.create("ZILVO_ZilvoButtons.DeckButtons") -- or "{49F5CF18-C7FD-407E-9374-3078A6FA29DC}"
decks:on("NumberOfDecksChanged", function(count) print("the table has " .. count .. " decks") end)
decks.NumberOfDecks = 6
decks:widget("optDeckCount", 8):click()
print("NumberOfDecks is " .. decks:invoke(0x68030001, "get"))
