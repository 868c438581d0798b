-- What an author does in Neovim with the language server: opening, typing, and the answers that the built-in
-- client shows. Ends Neovim with an error and names the first thing that is not as expected.

local patience = 10000

local function expect(what, is_right, seen)
  if not is_right then error(what .. ', and not: ' .. vim.inspect(seen), 0) end
end

local function wait_for(what, is_there)
  if not vim.wait(patience, is_there, 10) then error('waited in vain for ' .. what, 0) end
end

local function lines() return vim.api.nvim_buf_get_lines(0, 0, -1, false) end

local function codes()
  return vim.tbl_map(function(one) return one.code or one.user_data.lsp.code end, vim.diagnostic.get(0))
end

local function wait_for_codes(...)
  local expected = { ... }
  wait_for('the findings ' .. vim.inspect(expected), function() return vim.deep_equal(codes(), expected) end)
end

local function type_keys(keys)
  vim.api.nvim_feedkeys(vim.api.nvim_replace_termcodes(keys, true, false, true), 'tx', false)
end

local function open(name)
  vim.cmd('edit! ' .. name)
  wait_for('the server', function()
    local _, client = next(vim.lsp.buf_get_clients(0))
    return client ~= nil and client.initialized
  end)
end

local steps = {}

function steps.findings_are_shown_and_follow_what_is_typed()
  open('careless.qin')
  wait_for_codes('QL201', 'QL104', 'QL301')
  local found = vim.diagnostic.get(0)
  expect('the third finding is in the last line', found[3].lnum == 4, found[3])
  expect('it is an error', found[3].severity == vim.diagnostic.severity.ERROR, found[3])
  type_keys('5GCb 1 2<Esc>')
  wait_for_codes('QL201', 'QL104')
  type_keys('u')
  wait_for_codes('QL201', 'QL104', 'QL301')
end

-- Neovim names a line that the text does not have.
function steps.a_last_line_without_a_line_end_can_be_removed()
  open('unended.qin')
  wait_for_codes('QL301')
  type_keys('Gdd')
  wait_for_codes()
end

function steps.a_code_action_corrects_the_line()
  open('careless.qin')
  wait_for_codes('QL201', 'QL104', 'QL301')
  vim.ui.select = function(actions, options, choose)
    for index, one in ipairs(actions) do
      if one[2].kind == 'quickfix' then return choose(one, index) end
    end
    error('no quick fix among ' .. vim.inspect(actions) .. vim.inspect(options), 0)
  end
  type_keys('4G6l')
  vim.lsp.buf.code_action()
  wait_for('the correction', function() return lines()[4] == 'H 0 0 0.74' end)
  wait_for_codes('QL201', 'QL301')
end

function steps.the_whole_text_is_formatted()
  open('water.qin')
  vim.lsp.buf.formatting_sync({}, patience)
  expect('an atom is formatted', lines()[5] == 'O        0.000000      0.000000      0.117176', lines())
  expect('the scan is formatted', lines()[10] == 'S 2 1 3 120 10', lines())
end

function steps.a_text_that_would_lose_something_stays()
  open('careless.qin')
  local before = lines()
  pcall(vim.lsp.buf.formatting_sync, {}, patience)
  expect('the text is as before', vim.deep_equal(lines(), before), lines())
end

function steps.hover_says_what_the_line_means()
  open('water.qin')
  type_keys('9G0')
  vim.lsp.buf.hover()
  local shown
  wait_for('the hover text', function()
    for _, window in ipairs(vim.api.nvim_list_wins()) do
      if vim.api.nvim_win_get_config(window).relative ~= '' then
        shown = vim.api.nvim_buf_get_lines(vim.api.nvim_win_get_buf(window), 0, -1, false)
        vim.api.nvim_win_close(window, true)
        return true
      end
    end
  end)
  expect('the distance is shown', table.concat(shown, '\n'):find('0.957', 1, true), shown)
end

function steps.an_atom_number_leads_to_its_atom()
  open('water.qin')
  type_keys('9G$')
  vim.lsp.buf.definition()
  wait_for('the atom', function() return vim.api.nvim_win_get_cursor(0)[1] == 6 end)
end

function steps.elements_are_completed()
  open('water.qin')
  local params = vim.lsp.util.make_position_params()
  params.position = { line = 5, character = 1 }
  local answers = vim.lsp.buf_request_sync(0, 'textDocument/completion', params, patience)
  local _, answer = next(answers)
  local items = vim.lsp.util.text_document_completion_list_to_complete_items(answer.result, 'H')
  local words = vim.tbl_map(function(one) return one.word end, items)
  expect('elements with H are offered', vim.tbl_contains(words, 'He') and vim.tbl_contains(words, 'Hf'), words)
end

function steps.files_are_completed()
  open('path.qin')
  type_keys('3G$')
  local params = vim.lsp.util.make_position_params()
  params.position.character = #lines()[3]
  local answers = vim.lsp.buf_request_sync(0, 'textDocument/completion', params, patience)
  local _, answer = next(answers)
  local items = vim.lsp.util.text_document_completion_list_to_complete_items(answer.result, 'wa')
  expect('the file is offered', #items == 1 and items[1].word == 'water.xyz', items)
end

function steps.the_server_ends_with_the_editor()
  local _, client = next(vim.lsp.get_active_clients())
  client.stop()
  wait_for('the end of the server', function() return client.is_stopped() end)
end

require('quill_inp').setup()
local order = {
  'findings_are_shown_and_follow_what_is_typed', 'a_last_line_without_a_line_end_can_be_removed', 'a_code_action_corrects_the_line',
  'the_whole_text_is_formatted', 'a_text_that_would_lose_something_stays', 'hover_says_what_the_line_means',
  'an_atom_number_leads_to_its_atom', 'elements_are_completed', 'files_are_completed',
  'the_server_ends_with_the_editor',
}
for _, name in ipairs(order) do
  local is_right, failure = xpcall(steps[name], debug.traceback)
  if not is_right then
    io.stderr:write(name:gsub('_', ' ') .. ': ' .. tostring(failure) .. '\n')
    vim.cmd('cquit!')
  end
end
expect('every step has its place in the order', #order == vim.tbl_count(steps), order)
vim.cmd('qall!')
