-- A host keeps the seats that a player plays in the bits of a number, and tests and changes them.
local goodies = zilvo.create("ZilvoButtonGoodies")
--> created ZilvoButtonGoodies
-- Without naming an instance.
print(SeatBitSet(0, Seat1WasSelected), SeatBitSet(2, SpreadToSeat10Requested), SeatBitSet(0, noSpreadSeats))
--> prints 2 1026 1 0 0
print(SeatBitIsSet(1024, 10), SeatBitIsNotSet(1024, 10), SeatBitReset(1026, 1), SeatBitToggle(8, 3))
--> prints true false 1024 0 8 3
print(SeatBitToggle(-32767, 15), SeatBitToggle(-32768, 20))
--> prints 1 32768 -32768 20
-- By id; what a caller passes is left as it was.
for id = 0x60030000, 0x60030004 do print(goodies:invoke(id, "method", 2.75, "3")) end
--> prints true 2.75 3
--> prints false 2.75 3
--> prints 3 2.75 3
--> prints 11 2.75 3
--> prints 11 2.75 3
-- With the bit numbers in and around the sixteen bits: each from which on there is another result.
local descriptors = { 0, 5, -1, -32768, 32767 }
local function results(call, descriptor)
  local list, last = {}, nil
  for bit = -16, 16 do
    local result = call(goodies, descriptor, bit)
    if result ~= last then list[#list + 1] = bit .. ":" .. tostring(result) end
    last = result
  end
  return table.concat(list, " ")
end
for _, d in ipairs(descriptors) do print(d, results(goodies.SeatBitIsSet, d)) end
--> prints 0 -16:false
--> prints 5 -16:false 0:true 1:false 2:true 3:false
--> prints -1 -16:false 0:true 16:false
--> prints -32768 -16:false 15:true 16:false
--> prints 32767 -16:false 0:true 15:false
for _, d in ipairs(descriptors) do print(d, results(goodies.SeatBitIsNotSet, d)) end
--> prints 0 -16:false 0:true 16:false
--> prints 5 -16:false 1:true 2:false 3:true 16:false
--> prints -1 -16:false
--> prints -32768 -16:false 0:true 15:false
--> prints 32767 -16:false 15:true 16:false
for _, d in ipairs(descriptors) do print(d, results(goodies.SeatBitReset, d)) end
--> prints 0 -16:0
--> prints 5 -16:-5 -15:5 0:4 1:5 2:1 3:5 16:-5
--> prints -1 -16:1 -15:32767 -14:-1 0:-2 1:-3 2:-5 3:-9 4:-17 5:-33 6:-65 7:-129 8:-257 9:-513 10:-1025 11:-2049 12:-4097 13:-8193 14:-16385 15:32767 16:1
--> prints -32768 -16:32768 -15:0 -14:-32768 15:0 16:32768
--> prints 32767 -16:-32767 -15:32767 0:32766 1:32765 2:32763 3:32759 4:32751 5:32735 6:32703 7:32639 8:32511 9:32255 10:31743 11:30719 12:28671 13:24575 14:16383 15:32767 16:-32767
for _, d in ipairs(descriptors) do print(d, results(goodies.SeatBitSet, d)) end
--> prints 0 -16:0 -15:-32768 -14:0 0:1 1:2 2:4 3:8 4:16 5:32 6:64 7:128 8:256 9:512 10:1024 11:2048 12:4096 13:8192 14:16384 15:-32768 16:0
--> prints 5 -16:-5 -15:-32763 -14:5 1:7 2:5 3:13 4:21 5:37 6:69 7:133 8:261 9:517 10:1029 11:2053 12:4101 13:8197 14:16389 15:-32763 16:-5
--> prints -1 -16:1 -15:-1 16:1
--> prints -32768 -16:32768 -15:-32768 0:-32767 1:-32766 2:-32764 3:-32760 4:-32752 5:-32736 6:-32704 7:-32640 8:-32512 9:-32256 10:-31744 11:-30720 12:-28672 13:-24576 14:-16384 15:-32768 16:32768
--> prints 32767 -16:-32767 -15:-1 -14:32767 15:-1 16:-32767
for _, d in ipairs(descriptors) do print(d, results(goodies.SeatBitToggle, d)) end
--> prints 0 -16:0 0:1 1:2 2:4 3:8 4:16 5:32 6:64 7:128 8:256 9:512 10:1024 11:2048 12:4096 13:8192 14:16384 15:-32768 16:0
--> prints 5 -16:-5 0:4 1:7 2:1 3:13 4:21 5:37 6:69 7:133 8:261 9:517 10:1029 11:2053 12:4101 13:8197 14:16389 15:-32763 16:-5
--> prints -1 -16:1 0:-2 1:-3 2:-5 3:-9 4:-17 5:-33 6:-65 7:-129 8:-257 9:-513 10:-1025 11:-2049 12:-4097 13:-8193 14:-16385 15:32767 16:1
--> prints -32768 -16:32768 0:-32767 1:-32766 2:-32764 3:-32760 4:-32752 5:-32736 6:-32704 7:-32640 8:-32512 9:-32256 10:-31744 11:-30720 12:-28672 13:-24576 14:-16384 15:0 16:32768
--> prints 32767 -16:-32767 0:32766 1:32765 2:32763 3:32759 4:32751 5:32735 6:32703 7:32639 8:32511 9:32255 10:31743 11:30719 12:28671 13:24575 14:16383 15:-1 16:-32767
-- Bit numbers far out, of which the last has no absolute value.
for _, bit in ipairs { 2147483647, 32, -32, -2147483647 } do
  print(SeatBitIsSet(5, bit), SeatBitIsNotSet(5, bit), SeatBitReset(5, bit), SeatBitSet(5, bit), SeatBitToggle(5, bit))
end
--> prints false false -5 -5 -5 5 2147483647
--> prints false false -5 -5 -5 5 32
--> prints false false -5 -5 -5 5 -32
--> prints false false -5 -5 -5 5 -2147483647
print(SeatBitIsSet(5, -2147483648), SeatBitIsNotSet(5, -2147483648), SeatBitToggle(5, -2147483648))
--> prints false false -5 5 -2147483648
for _, call in ipairs { SeatBitReset, SeatBitSet } do pcall(call, 5, -2147483648) end
--> fails: overflow: ZilvoButtonGoodies.SeatBitReset: WhichBit -2147483648 has no absolute value
--> fails: overflow: ZilvoButtonGoodies.SeatBitSet: WhichBit -2147483648 has no absolute value
-- What is no descriptor or no bit number.
pcall(SeatBitSet, 32768, 1)
--> fails: overflow: ZilvoButtonGoodies.SeatBitSet: 32768 (Long) is out of the range of Integer
pcall(SeatBitSet, 5, "one")
--> fails: type mismatch: ZilvoButtonGoodies.SeatBitSet: "one" (String) does not convert to Long
