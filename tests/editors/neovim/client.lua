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

function steps.the_server_ends_with_the_editor()
  local _, client = next(vim.lsp.get_active_clients())
  client.stop()
  wait_for('the end of the server', function() return client.is_stopped() end)
end

require('quill_inp').setup()
local order = {
  'hover_says_what_the_line_means', 'an_atom_number_leads_to_its_atom', 'elements_are_completed',
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
