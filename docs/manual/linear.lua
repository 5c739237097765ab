-- For a text without any layout, as braille is: a row of a table is an item that begins with its first cell and names the others
-- by their columns, a picture is what it shows, and headings have numbers to look for.

local function text(cell) return pandoc.utils.blocks_to_inlines(cell.contents) end

local function capitalized(words) return (pandoc.utils.stringify(words):gsub("^%l", string.upper)) end

-- Adds a sentence, with a full stop where it ends in no mark.
local function add(line, sentence)
    if #line > 0 then line:insert(pandoc.Space()) end
    line:extend(sentence)
    if not pandoc.utils.stringify(sentence):match("[.:?]$") then line:insert(pandoc.Str(".")) end
end

function Table(tab)
    local heads, lines = tab.head.rows[1].cells, pandoc.List()
    for _, row in ipairs(tab.bodies[1].body) do
        local line = pandoc.List()
        for column, cell in ipairs(row.cells) do
            local sentence = text(cell)
            if #sentence > 0 then
                if column > 1 then
                    sentence = pandoc.List({pandoc.Str(capitalized(text(heads[column])) .. ":"), pandoc.Space()}) .. sentence
                end
                add(line, sentence)
            end
        end
        lines:insert({pandoc.Plain(line)})
    end
    return pandoc.BulletList(lines)
end

function Image(image)
    return {pandoc.Str("[Dibujo:"), pandoc.Space(), pandoc.Span(image.caption), pandoc.Str("]")}
end

local chapter, section = 0, 0

function Header(header)
    if header.level == 1 then
        chapter, section = chapter + 1, 0
        header.content:insert(1, pandoc.Str(chapter .. ". "))
    else
        section = section + 1
        header.content:insert(1, pandoc.Str(chapter .. "." .. section .. ". "))
    end
    return header
end
